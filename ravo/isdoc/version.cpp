#include "version.h"

#include "schema.h"

#include <optional>

namespace ravo::isdoc {
namespace {

constexpr std::string_view kFormerSpace = "http://isdoc.cz/namespace/invoice";

std::optional<std::string_view> SaidVersion(const Document& document) noexcept {
  for (const Attribute& attribute : document.Attributes(document.Root())) {
    if (attribute.name == "version") return attribute.value;
  }
  return std::nullopt;
}

}  // namespace

Version VersionOf(const Document& document) noexcept {
  const Element& root = document.Root();
  if (root.space == kFormerSpace) return Version::Other;
  if (root.space != schema::kSpace || (root.name != "Invoice" && root.name != "CommonDocument"))
    return Version::None;
  return SaidVersion(document).value_or("6.").starts_with("6.") ? Version::Known : Version::Other;
}

std::string_view VersionText(const Document& document) noexcept {
  return SaidVersion(document).value_or("5");
}

}  // namespace ravo::isdoc
