#pragma once

#include <ravo/runtime/error.h>

#include <string>

namespace ravo::test {

/// The message of the error that a call raises; "none" where it raises none.
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
