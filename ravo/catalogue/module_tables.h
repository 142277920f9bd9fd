#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// The look-ups of the modules that have tables, each in the namespace of its module.
namespace ravo {

#define RAVO_TABLE_MODULE(tables, module, get_description)                                       \
  namespace module {                                                                             \
  /** Returns the description of table `id` of this module; empty for every other identifier. */ \
  [[nodiscard]] RAVO_API std::u16string get_description(std::int32_t id);                        \
  }
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE

#define RAVO_NO_CACHED_FIELDS(module, get_cached_fields)                                                  \
  namespace module {                                                                                      \
  /** Returns the cached fields of a table by its name. No table of this module has any: always empty. */ \
  [[nodiscard]] RAVO_API std::u16string get_cached_fields(std::u16string_view table);                     \
  }
#include <ravo/catalogue/no_cached_fields.inc>
#undef RAVO_NO_CACHED_FIELDS

}  // namespace ravo
