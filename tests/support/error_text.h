#pragma once

#include <ravo/runtime/error.h>

#include <string>

namespace ravo::test {

/// Returns the message of the error that a call throws; "none" if it throws none.
template <class Call>
[[nodiscard]] std::u16string ErrorText(const Call& call) {
  try {
    call();
  } catch (const Error& error) {
    return error.Message();
  }
  return u"none";
}

}  // namespace ravo::test
