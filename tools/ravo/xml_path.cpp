#include "xml_path.h"

#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <stdexcept>

namespace tool {
namespace {

using ravo::ECXMLParser::TXMLItem;

[[noreturn]] void RaisePath(const std::string& path) {
  throw std::runtime_error("'" + path + "' is no path");
}

// A step of a path: a name and the 1-based number among the elements of that name.
struct Step {
  std::u16string name;
  std::int32_t number = 1;
};

// Refuses a name that a saved tag could not hold.
std::u16string NameOf(std::string_view text, const XmlWords& words, const std::string& path) {
  const bool fits = std::ranges::none_of(text, [](char ch) {
    return static_cast<unsigned char>(ch) <= 0x20 ||
           std::string_view("<>&\"'=@[]").find(ch) != std::string_view::npos;
  });
  if (text.empty() || !fits) RaisePath(path);
  return words.Kept(std::string(text));
}

Step StepOf(std::string_view text, const XmlWords& words, const std::string& path) {
  Step step;
  const std::size_t bracket = text.find('[');
  step.name = NameOf(text.substr(0, bracket), words, path);
  if (bracket == std::string_view::npos) return step;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data() + bracket + 1, end, step.number);
  if (error != std::errc() || step.number < 1 || stop + 1 != end || *stop != ']') RaisePath(path);
  return step;
}

// Compares names as they are shown: the code page cannot fold the case of bytes in UTF-8.
bool SameName(std::u16string_view left, std::u16string_view right, const XmlWords& words) {
  return ravo::DIUtils::StrSameI(ravo::FromUtf8(words.Shown(left)), ravo::FromUtf8(words.Shown(right)));
}

TXMLItem* ChildOf(TXMLItem& item, const Step& step, const XmlWords& words, bool grow) {
  std::int32_t found = 0;
  for (std::int32_t i = 0; i < item.SubItemCount(); ++i) {
    TXMLItem* const child = item.SubItems(i);
    if (SameName(child->Name(), step.name, words) && ++found == step.number) return child;
  }
  // Only the next element of its name can be added.
  if (!grow || found + 1 < step.number) return nullptr;
  TXMLItem* const added = item.New();
  added->SetName(step.name);
  return added;
}

// The first step is the root, or a child of a root without a name.
TXMLItem* First(TXMLItem& root, const Step& step, const XmlWords& words, bool grow) {
  if (root.Name().empty()) return ChildOf(root, step, words, grow);
  return step.number == 1 && SameName(step.name, root.Name(), words) ? &root : nullptr;
}

}  // namespace

XmlPlace FindXmlPlace(TXMLItem& root, const XmlWords& words, const std::string& path, bool grow) {
  XmlPlace place;
  std::string_view rest = path;
  if (rest.starts_with('/')) rest.remove_prefix(1);
  if (rest.empty()) RaisePath(path);
  for (bool first = true; !rest.empty(); first = false) {
    const std::size_t slash = std::min(rest.find('/'), rest.size());
    const std::string_view text = rest.substr(0, slash);
    rest.remove_prefix(std::min(slash + 1, rest.size()));
    if (text.starts_with('@') && !first && rest.empty()) {
      place.attribute = NameOf(text.substr(1), words, path);
      break;
    }
    const Step step = StepOf(text, words, path);
    if (first) {
      place.item = First(root, step, words, grow);
    } else if (place.item != nullptr) {
      place.item = ChildOf(*place.item, step, words, grow);
    }
  }
  return place;
}

std::optional<std::size_t> XmlAttribute(const ravo::StringList& params, const XmlWords& words,
                                        std::u16string_view name) {
  for (std::size_t i = 0; i < params.Count(); ++i) {
    if (SameName(params.NameAt(i), name, words)) return i;
  }
  return std::nullopt;
}

}  // namespace tool
