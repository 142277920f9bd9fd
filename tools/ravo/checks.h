#pragma once

#include "reasons.h"

#include <span>
#include <string>
#include <string_view>

namespace tool {

/// The result of a check: whether the value is valid, and a remark, which may be empty.
struct Verdict {
  bool valid = false;
  std::string remark;
  Reason reason = Reason::Invalid;  // if not valid
};

/// A kind of value. `check` accepts any text and never throws.
struct CheckKind {
  std::string_view name;
  std::string_view title;
  Verdict (*check)(std::u16string_view text);
};

/// Returns all kinds, in the order of the help text.
[[nodiscard]] std::span<const CheckKind> CheckKinds();

/// Returns the kind of this name, or null.
[[nodiscard]] const CheckKind* FindCheckKind(std::string_view name);

}  // namespace tool
