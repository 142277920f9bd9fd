#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tool {

/// What a check says of a value: whether it is right and, where there is more to say, what.
struct Verdict {
  bool valid = false;
  std::string remark;
};

/// One kind of value that can be checked. `check` takes any text and never raises.
struct CheckKind {
  std::string_view name;
  std::string_view title;
  Verdict (*check)(std::u16string_view text);
};

/// Returns all kinds, in the order of the help text.
[[nodiscard]] std::span<const CheckKind> CheckKinds();

/// The kind of that name, or null.
[[nodiscard]] const CheckKind* FindCheckKind(std::string_view name);

/// The names of all kinds, separated by `between`.
[[nodiscard]] std::string CheckKindNames(std::string_view between);

}  // namespace tool
