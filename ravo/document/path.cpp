#include "path.h"

#include <ravo/runtime/text.h>
#include <ravo/utils/strings/compare.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <numeric>

namespace ravo::document {
namespace {

DocumentPath::Step StepOf(std::string_view text, const std::string& path) {
  DocumentPath::Step step;
  const std::size_t bracket = std::min(text.find('['), text.size());
  step.name = text.substr(0, bracket);
  const std::string_view rest = text.substr(bracket);
  bool fits = IsXmlName(step.name);
  if (fits && !rest.empty()) {
    const char* const end = rest.data() + rest.size();
    const auto [stop, error] = std::from_chars(rest.data() + 1, end, step.number);
    fits = error == std::errc() && step.number > 0 && stop + 1 == end && *stop == ']';
  }
  if (!fits) throw PathError(Message::BadPath, {path});
  return step;
}

bool IsSameInAnyCase(std::string_view left, std::string_view right) {
  return DIUtils::StrSameI(FromUtf8(left), FromUtf8(right));
}

// Returns the candidates with a name, compared exactly if any fits so, and otherwise without regard to case.
template <class NameOf>
std::vector<std::size_t> Named(const std::vector<std::size_t>& candidates, const std::string& name,
                               NameOf name_of) {
  std::vector<std::size_t> named;
  std::ranges::copy_if(candidates, std::back_inserter(named),
                       [&](std::size_t i) { return name_of(i) == name; });
  if (!named.empty()) return named;
  std::ranges::copy_if(candidates, std::back_inserter(named),
                       [&](std::size_t i) { return IsSameInAnyCase(name_of(i), name); });
  for (const std::size_t i : named) {
    if (name_of(i) == name_of(named[0])) continue;
    const std::string both = std::string(name_of(named[0])) + ", " + std::string(name_of(i));
    throw PathError(Message::AmbiguousName, {name, both});
  }
  return named;
}

}  // namespace

DocumentPath ParsePath(const std::string& utf8) {
  DocumentPath path;
  path.text = utf8;
  std::string_view rest = utf8;
  if (rest.starts_with('/')) rest.remove_prefix(1);
  for (bool more = true; more;) {
    const std::size_t slash = rest.find('/');
    const std::string_view text = rest.substr(0, slash);
    more = slash != std::string_view::npos;
    if (more) rest.remove_prefix(slash + 1);
    if (text.starts_with('@') && !more && !path.steps.empty()) {
      path.attribute = text.substr(1);
      if (!IsXmlName(path.attribute)) throw PathError(Message::BadPath, {utf8});
    } else {
      path.steps.push_back(StepOf(text, utf8));
    }
  }
  return path;
}

std::vector<std::size_t> ChildrenOf(const ScannedDocument& document, std::size_t element) {
  std::vector<std::size_t> children;
  for (std::size_t i = element + 1; i < document.parts[element].partner; ++i) {
    if (!document.parts[i].OpensElement()) continue;
    children.push_back(i);
    i = document.parts[i].partner;
  }
  return children;
}

const PathFinder::Elements& PathFinder::Children(std::optional<std::size_t> parent, const std::string& name) {
  const auto [known, is_new] = children_.try_emplace({parent, name});
  if (!is_new) return known->second;
  const Elements all = parent ? ChildrenOf(document_, *parent) : Elements{document_.root};
  const auto name_of = [&](std::size_t i) { return document_.parts[i].name.Of(document_.text); };
  return known->second = Named(all, name, name_of);
}

std::optional<std::size_t> PathFinder::Attribute(std::size_t element, const std::string& name) const {
  const DocumentPart& part = document_.parts[element];
  std::vector<std::size_t> all(part.attribute_count);
  std::iota(all.begin(), all.end(), part.first_attribute);
  const auto name_of = [&](std::size_t i) { return document_.attributes[i].name.Of(document_.text); };
  const auto named = Named(all, name, name_of);
  return named.empty() ? std::nullopt : std::optional(named.front());
}

DocumentPlace PathFinder::Find(const DocumentPath& path) {
  DocumentPlace place;
  std::optional<std::size_t> parent;
  for (const DocumentPath::Step& step : path.steps) {
    const Elements& named = Children(parent, step.name);
    place.found = named.size();
    if (named.size() < step.number) return place;
    parent = place.element = named[step.number - 1];
    ++place.steps;
  }
  if (!path.attribute.empty()) place.attribute = Attribute(place.element, path.attribute);
  return place;
}

DocumentPlace PathFinder::FindWhole(const DocumentPath& path) {
  const DocumentPlace place = Find(path);
  if (!IsWhole(place, path)) throw PathError(Message::NothingThere, {path.text});
  return place;
}

std::optional<std::size_t> FindInReading(const DocumentReading& reading, const DocumentPath& path) {
  std::size_t from = 0;
  std::size_t depth = !reading.empty() && reading[0].name.empty() ? 1 : 0;
  std::size_t at = 0;
  for (const DocumentPath::Step& step : path.steps) {
    std::size_t left = step.number;
    for (at = from; at < reading.size(); ++at) {
      if (reading[at].depth < depth && at > 0) return std::nullopt;
      if (reading[at].depth == depth && IsSameInAnyCase(reading[at].name, step.name) && --left == 0) break;
    }
    if (at == reading.size()) return std::nullopt;
    from = at + 1;
    ++depth;
  }
  return at;
}

std::optional<std::size_t> FindAttribute(const ReadElement& element, const std::string& name) {
  const auto found = std::ranges::find_if(
      element.attributes, [&](const auto& attribute) { return IsSameInAnyCase(attribute.first, name); });
  if (found == element.attributes.end()) return std::nullopt;
  return static_cast<std::size_t>(found - element.attributes.begin());
}

bool IsWhole(const DocumentPlace& place, const DocumentPath& path) {
  return place.steps == path.steps.size() && (path.attribute.empty() || place.attribute);
}

}  // namespace ravo::document
