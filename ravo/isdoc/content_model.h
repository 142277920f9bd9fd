#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>
#include <ravo/isdoc/schema.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ravo::isdoc::schema {

/// The children of one element, held to the content model of its type one after another.
///
/// After a fault it goes on where the next children fit, so that one slip is told once: an unknown child
/// counts as the one that is missing at its place, and of two children that changed places one is told.
class ContentModel {
 public:
  /// What became of a child.
  struct Answer {
    const ElementRow* element = nullptr;  ///< what the child is; null if it should not be looked into
    std::optional<Rule> fault;            ///< why it should not be there
    std::string expected;                 ///< the names that are allowed at its place
    std::vector<std::string> missing;     ///< what should have been before it; alternatives with commas
  };

  /// Begins with a type that has elements.
  void Begin(const Type& type);

  /// Takes the next child of `parent`.
  Answer Take(const Document& document, const Element& parent, const Element& child);

  /// Returns what is missing at the end; alternatives with commas.
  [[nodiscard]] std::vector<std::string> End();

 private:
  struct Occurrence {
    std::uint32_t first = kNone;
    std::uint32_t last = 0;
  };
  using Names = std::vector<std::uint16_t>;

  [[nodiscard]] std::span<const ElementRow> Elements() const;
  [[nodiscard]] const State& StateAt(std::size_t state) const;
  [[nodiscard]] std::span<const Arc> ArcsOf(std::size_t state) const;
  [[nodiscard]] const Arc* Matching(std::size_t state, const Element& child) const;
  [[nodiscard]] const Arc* ArcTo(std::size_t state, std::uint16_t element) const;
  [[nodiscard]] bool Reaches(std::size_t state, std::uint16_t element) const;
  [[nodiscard]] Names Needed(std::size_t state) const;
  [[nodiscard]] Names NeededFor(std::size_t state, std::uint16_t element, std::uint64_t seen) const;
  [[nodiscard]] bool StepsTo(std::uint16_t element, std::vector<Names>& steps, std::size_t& state) const;
  [[nodiscard]] std::string Listed(const Names& elements) const;
  [[nodiscard]] std::string Possible(std::size_t state) const;
  Answer Unknown(std::optional<std::uint16_t> name);
  Answer Ahead(const Document& document, const Element& child, std::uint16_t element,
               std::vector<Names> steps, std::size_t state);
  Answer Passed(std::uint32_t number, std::uint16_t element);
  [[nodiscard]] bool Excused(const Names& step);
  [[nodiscard]] bool ComesLater(const Names& step, std::uint32_t number) const;
  void FindOccurrences(const Document& document, const Element& parent);

  const Type* type_ = nullptr;
  std::size_t state_ = 0;
  std::uint32_t stand_ins_ = 0;          // unknown children that nothing missing was set against
  Names early_;                          // elements that came before their place
  Names late_;                           // elements whose place is past, which will come
  std::vector<Occurrence> occurrences_;  // of the elements, from the first fault on
};

}  // namespace ravo::isdoc::schema
