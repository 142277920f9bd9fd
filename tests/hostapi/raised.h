#pragma once

#include <ravo/runtime/component.h>
#include <ravo/runtime/error.h>

#include <string>

namespace ravo::test {

/// The error that creating a component throws; code 0 if it throws nothing.
struct Raised {
  ResultCode code = 0;
  std::u16string text;
};

template <class Creation>
[[nodiscard]] Raised RaisedBy(const Creation& creation) {
  try {
    static_cast<void>(creation());
  } catch (const ComponentError& error) {
    return {error.Code(), error.Message()};
  }
  return {};
}

}  // namespace ravo::test
