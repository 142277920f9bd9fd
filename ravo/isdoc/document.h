#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::isdoc {

/// A place in a document: line and column, in characters of it, from 1; 0 if it has none.
struct Place {
  std::uint32_t line = 0;
  std::uint32_t column = 0;
  friend constexpr bool operator==(const Place&, const Place&) noexcept = default;
};

/// An attribute. Texts are UTF-8.
struct Attribute {
  std::string_view space;  ///< the URI of its namespace; empty for none
  std::string_view name;   ///< without a prefix
  std::string_view value;
};

/// An element of a document. Texts are UTF-8 and live as long as the document.
struct Element {
  std::string_view space;         ///< the URI of its namespace; empty for none
  std::string_view name;          ///< without a prefix
  std::string_view text;          ///< directly inside, its pieces joined, blanks kept
  Place place;                    ///< of its tag
  std::uint32_t parent = 0;       ///< number of the element that it is in; of the root, `kNone`
  std::uint32_t first_child = 0;  ///< number, or `kNone`
  std::uint32_t next = 0;         ///< number of the next element in the same parent, or `kNone`
  std::uint32_t first_attribute = 0;
  std::uint32_t attribute_count = 0;
};

/// The type that an element declares for itself by `xsi:type`.
struct DeclaredType {
  std::uint32_t element = 0;  ///< number
  std::string_view space;     ///< the URI of its prefix's namespace; empty for none
  std::string_view name;      ///< without a prefix; empty if nothing declares the prefix
};

/// The number that no element has.
inline constexpr std::uint32_t kNone = 0xFFFF'FFFF;

/// The namespace of `xsi:type` and of the attributes that tell where a schema is.
inline constexpr std::string_view kInstanceSpace = "http://www.w3.org/2001/XMLSchema-instance";

/// Why a document could not be read, and where.
struct ReadingError {
  Place place;
  std::string message;       ///< expat's own words, English
  std::size_t position = 0;  ///< in bytes
};

/// An XML document as a tree of numbered elements: the root is 0, the others follow as they open.
class Document {
 public:
  /// Reads a document. `utf8` is its text in UTF-8, whatever encoding it declares.
  ///
  /// Returns nothing for what is not well-formed, with the reason in `error`. Entities of a DOCTYPE are
  /// resolved within expat's limits; external ones are skipped. May throw `std::bad_alloc`.
  [[nodiscard]] static std::optional<Document> Read(std::string_view utf8, ReadingError& error);

  [[nodiscard]] std::span<const Element> Elements() const noexcept { return elements_; }
  [[nodiscard]] const Element& Root() const noexcept { return elements_.front(); }
  [[nodiscard]] std::uint32_t NumberOf(const Element& element) const noexcept {
    return static_cast<std::uint32_t>(&element - elements_.data());
  }

  /// Return the first child, the next sibling and the parent of an element, or null.
  [[nodiscard]] const Element* FirstChild(const Element& element) const noexcept {
    return At(element.first_child);
  }
  [[nodiscard]] const Element* Next(const Element& element) const noexcept { return At(element.next); }
  [[nodiscard]] const Element* Parent(const Element& element) const noexcept { return At(element.parent); }

  /// Returns the first child of that name, in whatever namespace, or null.
  [[nodiscard]] const Element* Child(const Element& element, std::string_view name) const noexcept;

  [[nodiscard]] std::span<const Attribute> Attributes(const Element& element) const noexcept {
    return std::span(attributes_).subspan(element.first_attribute, element.attribute_count);
  }

  /// The type that the element declares; null if it declares none.
  [[nodiscard]] const DeclaredType* TypeOf(const Element& element) const noexcept;

 private:
  friend class DocumentReader;
  [[nodiscard]] const Element* At(std::uint32_t number) const noexcept {
    return number == kNone ? nullptr : &elements_[number];
  }

  std::unique_ptr<std::pmr::monotonic_buffer_resource> texts_;
  std::vector<Element> elements_;
  std::vector<Attribute> attributes_;
  std::vector<DeclaredType> types_;
};

/// Calls `use(child)` for each child of an element that has this name.
template <class Use>
void ForEachChild(const Document& document, const Element& element, std::string_view name, Use use) {
  for (const Element* child = document.FirstChild(element); child != nullptr; child = document.Next(*child)) {
    if (child->name == name) use(*child);
  }
}

}  // namespace ravo::isdoc
