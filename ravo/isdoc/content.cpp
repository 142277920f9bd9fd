#include "content.h"

namespace ravo::isdoc {

void CheckContent(const Document& document, Findings& findings) {
  static_cast<void>(document);
  static_cast<void>(findings);
}

}  // namespace ravo::isdoc
