// The fixed data of the suite: its tables, the captions of its enumerations, its messages and its class
// identifiers.
//
// Each kind of data is one .inc file of rows (tables.inc, captions.inc, class_identifiers.inc). Declarations,
// constants for hosts in C, look-ups and listings are generated from the rows by macros. table_index.h holds
// the hash index over the table identifiers, which the compiler computes; modules/ holds the look-ups that
// each module exports under its own name.
//
// Start here, then read tables.inc and table_index.h. The identifiers never change: databases, language
// modules and the other modules of the suite use them. This room reads no file and changes nothing after it
// is compiled.
#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// The catalogue of the suite's data tables: maps a table identifier to the Czech display name of the table.
namespace ravo {

/// A module that has tables, in the order in which the dispatcher asks the modules.
enum class TableModule : std::uint8_t {
#define RAVO_TABLE_MODULE(tables, module, get_description) /** #module */ tables,
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE
};

/// One row of the catalogue: the identifiers `first` to `last`, both included, and their description.
struct TableRow {
  TableModule module;               ///< the module of the table
  std::int32_t first;               ///< the first identifier
  std::int32_t last;                ///< the last identifier, included
  std::u16string_view description;  ///< the Czech display name
};

/// Returns all rows, by module in the order of the dispatcher, then by identifier.
[[nodiscard]] RAVO_API std::span<const TableRow> TableRows() noexcept;

/// Returns the modules in the order of the dispatcher.
[[nodiscard]] RAVO_API std::span<const TableModule> TableModules() noexcept;

/// Returns the name of a module in the library: "RavoMzdaConstants" for `TableModule::Mzda`.
[[nodiscard]] RAVO_API std::string_view TableModuleName(TableModule module) noexcept;

/// Returns the short name of a module, as in the names of its look-ups: "Mzda" for `TableModule::Mzda`.
[[nodiscard]] RAVO_API std::string_view TableModuleKey(TableModule module) noexcept;

/// Returns the description of table `id` if it belongs to `module`, else an empty text. The view is valid as
/// long as the library is loaded.
[[nodiscard]] RAVO_API std::u16string_view TableDescription(TableModule module, std::int32_t id) noexcept;

namespace RavoInterfaceCommon {

/// Returns the description of table `id` of any module; empty if the identifier is unknown.
[[nodiscard]] RAVO_API std::u16string GetTableDescription(std::int32_t id);

/// Returns the same as `GetTableDescription` without a copy; the view is valid as long as the library is
/// loaded.
[[nodiscard]] RAVO_API std::u16string_view TableDescription(std::int32_t id) noexcept;

}  // namespace RavoInterfaceCommon
}  // namespace ravo
