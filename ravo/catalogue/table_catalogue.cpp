#include <ravo/catalogue/generated/table_hash.h>
#include <ravo/catalogue/table_catalogue.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ravo {
namespace {

using table_index::Index;
using table_index::kTableHashMultiplier;
using table_index::Place;

constexpr TableModule kModules[] = {
#define RAVO_TABLE_MODULE(module, name) TableModule::module,
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE
};

constexpr std::string_view kModuleNames[] = {
#define RAVO_TABLE_MODULE(module, name) name,
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE
};

constexpr std::string_view kModuleKeys[] = {
#define RAVO_TABLE_MODULE(module, name) #module,
#include <ravo/catalogue/table_modules.inc>
};

// Used at compile time only: in the library each text is stored once, in the pool.
constexpr auto kWrittenRows = std::to_array<TableRow>({
#define RAVO_TABLE(module, id, text) {TableModule::module, id, id, u##text},
#define RAVO_TABLE_RANGE(module, first, last, text) {TableModule::module, first, last, u##text},
#include <ravo/catalogue/tables.inc>
#undef RAVO_TABLE
#undef RAVO_TABLE_RANGE
});

consteval std::size_t PoolSize() {
  std::size_t size = 0;
  for (const TableRow& row : kWrittenRows) size += row.description.size();
  return size;
}

consteval bool TextsFitSlots() {
  return PoolSize() <= UINT16_MAX && std::ranges::all_of(kWrittenRows, [](const TableRow& row) {
           return row.description.size() <= UINT8_MAX;
         });
}

static_assert(TextsFitSlots(), "a slot of the index cannot hold the place or the length of a description");

consteval bool IdentifiersHaveOwnSlots() {
  std::array<bool, std::tuple_size_v<decltype(Index::slots)>> taken{};
  for (const TableRow& row : kWrittenRows) {
    for (std::int32_t id = row.first; id <= row.last; ++id) {
      bool& place = taken[Place(id, kTableHashMultiplier)];
      if (place) return false;
      place = true;
    }
  }
  return true;
}

static_assert(IdentifiersHaveOwnSlots(),
              "two identifiers share a slot of the index; find another multiplier for it: "
              "python3 tools/generate/table_hash.py > ravo/catalogue/generated/table_hash.h");

consteval auto MakePool() {
  std::array<char16_t, PoolSize()> pool{};
  auto at = pool.begin();
  for (const TableRow& row : kWrittenRows) at = std::ranges::copy(row.description, at).out;
  return pool;
}

constexpr auto kPool = MakePool();

consteval auto MakeTableRows() {
  auto rows = kWrittenRows;
  const char16_t* at = kPool.data();
  for (TableRow& row : rows) {
    row.description = {at, row.description.size()};
    at += row.description.size();
  }
  return rows;
}

constexpr auto kTableRows = MakeTableRows();

consteval Index MakeIndex() {
  Index index{.slots = {}, .pool = kPool.data(), .multiplier = kTableHashMultiplier};
  for (const TableRow& row : kTableRows) {
    const auto text_at = static_cast<std::uint16_t>(row.description.data() - kPool.data());
    const auto text_length = static_cast<std::uint8_t>(row.description.size());
    for (std::int32_t id = row.first; id <= row.last; ++id) {
      index.slots[Place(id, kTableHashMultiplier)] = {id, text_at, text_length, row.module};
    }
  }
  return index;
}

}  // namespace

constexpr Index table_index::kIndex = MakeIndex();

std::span<const TableRow> TableRows() noexcept { return kTableRows; }

std::span<const TableModule> TableModules() noexcept { return kModules; }

std::string_view TableModuleName(TableModule module) noexcept {
  return kModuleNames[static_cast<std::size_t>(module)];
}

std::string_view TableModuleKey(TableModule module) noexcept {
  return kModuleKeys[static_cast<std::size_t>(module)];
}

// One look-up instead of asking module after module: no identifier belongs to two modules, so the answer is
// the same.
std::u16string RavoInterfaceCommon::GetTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(id));
}

}  // namespace ravo
