#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// The catalogue of the suite's data tables: a table identifier gives the Czech display name of its table.
namespace ravo {

/// A module that has tables. The values are in the order in which the dispatcher asks the modules.
enum class TableModule : std::uint8_t {
#define RAVO_TABLE_MODULE(tables, module, get_description) /** #module */ tables,
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE
};

/// One row of the catalogue: the identifiers `first` to `last`, both included, and their description.
struct TableRow {
  TableModule module;               ///< whose table it is
  std::int32_t first;               ///< the first identifier
  std::int32_t last;                ///< the last identifier, included
  std::u16string_view description;  ///< the Czech display name
};

/// All rows, module by module in the dispatcher's order, in each module by identifier.
[[nodiscard]] RAVO_API std::span<const TableRow> TableRows() noexcept;

/// The modules in the dispatcher's order.
[[nodiscard]] RAVO_API std::span<const TableModule> TableModules() noexcept;

/// The name of a module in the library: "RavoMzdaConstants" for `TableModule::Mzda`.
[[nodiscard]] RAVO_API std::string_view TableModuleName(TableModule module) noexcept;

/// The short name of a module, as the names of its look-ups have it: "Mzda" for `TableModule::Mzda`.
[[nodiscard]] RAVO_API std::string_view TableModuleKey(TableModule module) noexcept;

/// The description of table `id` where that table belongs to `module`; empty for every other identifier. The
/// text lives as long as the library.
[[nodiscard]] RAVO_API std::u16string_view TableDescription(TableModule module, std::int32_t id) noexcept;

namespace RavoInterfaceCommon {

/// The description of table `id`, whichever module it belongs to; empty where no module knows the identifier.
[[nodiscard]] RAVO_API std::u16string GetTableDescription(std::int32_t id);

/// As `GetTableDescription`, without a copy: the text lives as long as the library.
[[nodiscard]] RAVO_API std::u16string_view TableDescription(std::int32_t id) noexcept;

}  // namespace RavoInterfaceCommon
}  // namespace ravo
