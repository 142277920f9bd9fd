#pragma once

#include <ravo/document/reading.h>
#include <ravo/document/scanner.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ravo::document {

/// A path such as `Invoice/Line[2]/Item/@ID`: names from the root on, each with its number among the elements
/// of its name, counted from 1, and possibly an attribute at the end.
struct DocumentPath {
  struct Step {
    std::string name;
    std::size_t number = 1;
  };
  std::string text;
  std::vector<Step> steps;
  std::string attribute;  ///< empty if the path denotes an element
};

/// Why a path cannot be read or followed, or a value not set.
class PathError : public Refusal {
 public:
  explicit PathError(Fault fault, std::size_t change = 0) : Refusal(std::move(fault)), change_(change) {}
  PathError(Message message, std::initializer_list<std::string_view> values)
      : PathError(Fault(message, values)) {}
  /// Returns the index of the change that does not fit, if there are several.
  [[nodiscard]] std::size_t Change() const { return change_; }

 private:
  std::size_t change_;
};

/// Throws `PathError` if `utf8` is not a path.
[[nodiscard]] DocumentPath ParsePath(const std::string& utf8);

/// How far a path leads.
struct DocumentPlace {
  std::size_t element = 0;               ///< the part that opens the last element found
  std::size_t steps = 0;                 ///< the number of steps found; 0 if not even the root fits
  std::optional<std::size_t> attribute;  ///< in the attributes of the document
  std::size_t found = 0;                 ///< the number of elements with the name of the last step tried
};

/// Returns whether a place is what the path denotes.
[[nodiscard]] bool IsWhole(const DocumentPlace& place, const DocumentPath& path);

/// Follows paths in a document, which must outlive it. Keeps the elements that it looked up, so that many
/// paths through one element cost one pass over its children.
class PathFinder {
 public:
  explicit PathFinder(const ScannedDocument& document) : document_(document) {}

  /// Returns how far `path` leads. A name that no element has exactly is compared without regard to case;
  /// throws `PathError` if it then has several spellings.
  [[nodiscard]] DocumentPlace Find(const DocumentPath& path);

  /// Returns the place that `path` denotes. Throws `PathError` if it does not exist.
  [[nodiscard]] DocumentPlace FindWhole(const DocumentPath& path);

 private:
  using Elements = std::vector<std::size_t>;

  [[nodiscard]] const Elements& Children(std::optional<std::size_t> parent, const std::string& name);
  [[nodiscard]] std::optional<std::size_t> Attribute(std::size_t element, const std::string& name) const;

  const ScannedDocument& document_;
  std::map<std::pair<std::optional<std::size_t>, std::string>, Elements> children_;
};

/// Returns the parts that open the elements directly inside another, in their order.
[[nodiscard]] std::vector<std::size_t> ChildrenOf(const ScannedDocument& document, std::size_t element);

/// Returns the element of a reading to which a path leads, if any. Names are compared without regard to case,
/// as in the suite. The elements below a root without a name take its place.
[[nodiscard]] std::optional<std::size_t> FindInReading(const DocumentReading& reading,
                                                       const DocumentPath& path);

/// Returns the attribute of an element with a name, without regard to case.
[[nodiscard]] std::optional<std::size_t> FindAttribute(const ReadElement& element, const std::string& name);

}  // namespace ravo::document
