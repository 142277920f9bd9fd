#include "translation.h"

#include <algorithm>

namespace tool {
namespace {

// In the order of the English texts.
constexpr Translation kCzech[] = {
#include "po/cs.inc"
};

}  // namespace

const Translation* CzechOf(std::string_view english) {
  const auto* const found = std::ranges::lower_bound(kCzech, english, {}, &Translation::english);
  return found != std::end(kCzech) && found->english == english ? found : nullptr;
}

}  // namespace tool
