#include <ravo/catalogue/generated/table_hash.h>
#include <ravo/catalogue/table_catalogue.h>
#include <ravo/catalogue/table_index.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ravo {
namespace {

using table_index::Index;
using table_index::kTableHashMultiplier;
using table_index::Place;

constexpr TableModule kModules[] = {
#define RAVO_TABLE_MODULE(tables, module, get_description) TableModule::tables,
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE
};

constexpr std::string_view kModuleNames[] = {
#define RAVO_TABLE_MODULE(tables, module, get_description) #module,
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE
};

constexpr std::string_view kModuleKeys[] = {
#define RAVO_TABLE_MODULE(tables, module, get_description) #tables,
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
  Index index;
  for (const TableRow& row : kTableRows) {
    const auto text_at = static_cast<std::uint16_t>(row.description.data() - kPool.data());
    const auto text_length = static_cast<std::uint8_t>(row.description.size());
    for (std::int32_t id = row.first; id <= row.last; ++id) {
      index.slots[Place(id, kTableHashMultiplier)] = {id, text_at, text_length, row.module};
    }
  }
  return index;
}

constexpr Index kIndex = MakeIndex();

const table_index::Slot& SlotOf(std::int32_t id) { return kIndex.slots[Place(id, kTableHashMultiplier)]; }

// The description in `slot`, or nothing if that is not a hit. The two differ in the length alone, by a
// product: a choice would become a jump, which mixed hits and misses mispredict every other time.
std::u16string_view TextOf(const table_index::Slot& slot, bool hit) {
  return {kPool.data() + slot.text_at, slot.text_length * std::size_t{hit}};
}

}  // namespace

std::span<const TableRow> TableRows() noexcept { return kTableRows; }

std::span<const TableModule> TableModules() noexcept { return kModules; }

std::string_view TableModuleName(TableModule module) noexcept {
  return kModuleNames[static_cast<std::size_t>(module)];
}

std::string_view TableModuleKey(TableModule module) noexcept {
  return kModuleKeys[static_cast<std::size_t>(module)];
}

std::u16string_view TableDescription(TableModule module, std::int32_t id) noexcept {
  const table_index::Slot& slot = SlotOf(id);
  return TextOf(slot, (slot.id == id) & (slot.module == module));
}

std::u16string_view RavoInterfaceCommon::TableDescription(std::int32_t id) noexcept {
  const table_index::Slot& slot = SlotOf(id);
  return TextOf(slot, slot.id == id);
}

// One look-up instead of asking module after module: no identifier belongs to two modules, so the answer is
// the same.
std::u16string RavoInterfaceCommon::GetTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(id));
}

}  // namespace ravo
