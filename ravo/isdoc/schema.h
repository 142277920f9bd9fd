#pragma once

#include <cstdint>
#include <string_view>

/// The rows of the standard's schemas: plain tables that refer to each other by number.
///
/// A type has its content model as an automaton: state 0 is the beginning, an arc leads from a state to the
/// next by an element. Facets of a type include those of the types that it restricts.
namespace ravo::isdoc::schema {

/// The number that no row has.
inline constexpr std::uint16_t kNoRow = 0xFFFF;

enum class Content : std::uint8_t { Empty, Text, Elements };

enum class BuiltIn : std::uint8_t { String, Decimal, Integer, Boolean, Date, Time, Uri, Language };

struct Type {
  std::string_view name;
  std::uint16_t base;  ///< the type that it restricts or extends, or `kNoRow`
  Content content;
  BuiltIn built_in;  ///< of its text
  std::uint16_t first_element;
  std::uint16_t element_count;
  std::uint16_t first_state;
  std::uint16_t state_count;  ///< at most 64
  std::uint16_t first_attribute;
  std::uint16_t attribute_count;
  std::uint16_t first_facet;
  std::uint16_t facet_count;
};

struct ElementRow {
  std::string_view
      name;            ///< "{namespace}*" for any element of a namespace, "{##other}*" for any of another one
  std::uint16_t type;  ///< `kNoRow` for any element
};

struct Arc {
  std::uint16_t element;  ///< within those of its type
  std::uint16_t state;    ///< within those of its type
  bool needed;            ///< no other arc of the state can come after it: without it something is missing
};

struct State {
  std::uint16_t first_arc;
  std::uint16_t arc_count;
  bool final;
};

struct AttributeRow {
  std::string_view name;
  std::uint16_t type;
  bool required;
};

struct Facet {
  enum class Kind : std::uint8_t { Pattern, Listed, Length, MaxLength };
  Kind kind;
  std::uint16_t number;  ///< of characters; of a pattern, its first state
  std::string_view text;
};

struct PatternArc {
  char first;
  char last;
  std::uint16_t state;
};

/// A key, or a reference to one: the elements at the end of the steps have different fields, or fields that
/// the other key has.
struct Key {
  std::string_view steps[3];  ///< names of children, from the root on; the last may be empty
  std::string_view field;
  bool attribute;        ///< the field is an attribute, not a child
  std::uint16_t refers;  ///< the other key, or `kNoRow`
};

struct Root {
  std::string_view name;
  std::uint16_t type;
  std::uint16_t first_key;
  std::uint16_t key_count;
};

#include "generated/schema.inc"

}  // namespace ravo::isdoc::schema
