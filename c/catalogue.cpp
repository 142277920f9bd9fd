#include "columns_answers.h"
#include <ravo/catalogue/generated/table_hash.h>
#include <ravo/catalogue/table_index.h>

#include <array>

using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsKnown;
using ravo::c::ReadText;

namespace {

// The rows of the catalogue as UTF-8: the texts of the C++ library are UTF-16.
struct TableLine {
  const char* name;
  const char* module;
  std::int32_t first;
  std::int32_t last;
};

#define RAVO_TABLE_MODULE(tables, module, get_description) constexpr const char* k##tables##Module = #module;
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE

constexpr TableLine kTables[] = {
#define RAVO_TABLE(module, id, text) {text, k##module##Module, id, id},
#define RAVO_TABLE_RANGE(module, first, last, text) {text, k##module##Module, first, last},
#include <ravo/catalogue/tables.inc>
#undef RAVO_TABLE
#undef RAVO_TABLE_RANGE
};

// The row of an identifier by its slot in the hash index.
struct TableSlot {
  std::int32_t id = 0;
  std::uint16_t row = 0;
};

constexpr auto kTableSlots = [] {
  std::array<TableSlot, std::size_t{1} << ravo::table_index::kSlotBits> slots{};
  for (std::size_t row = 0; row < std::size(kTables); ++row) {
    for (std::int32_t id = kTables[row].first; id <= kTables[row].last; ++id)
      slots[ravo::table_index::Place(id, ravo::table_index::kTableHashMultiplier)] = {
          id, static_cast<std::uint16_t>(row)};
  }
  return slots;
}();

// Returns null for an unknown identifier. Empty slots have the identifier 0, which no table has.
const TableLine* FindTable(std::int32_t id) {
  const TableSlot slot = kTableSlots[ravo::table_index::Place(id, ravo::table_index::kTableHashMultiplier)];
  return slot.id == id && id != 0 ? &kTables[slot.row] : nullptr;
}

// FNV-1a, of which the upper bits are mixed in.
constexpr std::size_t SlotOfName(std::string_view name) noexcept {
  std::uint32_t hash = 2166136261;
  for (const char byte : name) hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619;
  return (hash ^ hash >> 16) % 1024;
}

// Rows by name, each counted from 1: at the slot of the name or the next free one.
constexpr auto kTablesByName = [] {
  std::array<std::uint16_t, 1024> slots{};
  for (std::size_t row = 0; row < std::size(kTables); ++row) {
    std::size_t slot = SlotOfName(kTables[row].name);
    while (slots[slot] != 0) slot = (slot + 1) % slots.size();
    slots[slot] = static_cast<std::uint16_t>(row + 1);
  }
  return slots;
}();

// The first number of the table with a name.
ravo::c::Answer<std::int32_t> TableOfName(std::string_view name) noexcept {
  std::size_t slot = SlotOfName(name);
  for (; kTablesByName[slot] != 0; slot = (slot + 1) % kTablesByName.size()) {
    const TableLine& table = kTables[kTablesByName[slot] - 1];
    if (name == table.name) return {table.first};
  }
  const bool is_text = ravo::c::WellFormedLength(name) == name.size();
  return {0, is_text ? std::uint16_t{RAVO_CODE_UNKNOWN} : std::uint16_t{RAVO_CODE_NOT_UTF8}};
}

struct CaptionLine {
  const char* group;
  const char* prefix;
  const char* name;
  const char* text;
  std::int32_t id;
};

constexpr auto kCaptionLines = std::to_array<CaptionLine>({
#define RAVO_CAPTION_GROUP(prefix, title) {title, #prefix, nullptr, nullptr, 0},
#define RAVO_STRING(name, id, text) {nullptr, nullptr, #name, text, id},
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING
});

constexpr std::size_t kCaptionCount = static_cast<std::size_t>(
    std::ranges::count_if(kCaptionLines, [](const CaptionLine& line) { return line.name != nullptr; }));

constexpr auto kCaptions = [] {
  std::array<CaptionLine, kCaptionCount> rows{};
  CaptionLine group{};
  std::size_t count = 0;
  for (const CaptionLine& line : kCaptionLines) {
    if (line.name == nullptr)
      group = line;
    else
      rows[count++] = {group.group, group.prefix, line.name, line.text, line.id};
  }
  return rows;
}();

ravo_status FillTable(ravo_suite_table* table, const TableLine& row) {
  Fill(*table, {0, row.name, row.module, row.first, row.last});
  return RAVO_OK;
}

ravo_status FillCaption(ravo_suite_caption* caption, const CaptionLine& row) {
  Fill(*caption, {0, row.name, row.text, row.group, row.prefix, row.id});
  return RAVO_OK;
}

}  // namespace

size_t ravo_suite_table_count(void) { return std::size(kTables); }

ravo_status ravo_suite_table_at(size_t index, ravo_suite_table* table, ravo_error* error) {
  if (!IsKnown(table)) return FailStruct(error);
  if (index >= std::size(kTables)) return FailUnknown(error, "there are fewer tables");
  return FillTable(table, kTables[index]);
}

ravo_status ravo_suite_table_find(int32_t id, ravo_suite_table* table, ravo_error* error) {
  if (!IsKnown(table)) return FailStruct(error);
  const TableLine* row = FindTable(id);
  if (row == nullptr) return FailUnknown(error, "there is no such table");
  return FillTable(table, *row);
}

const char* ravo_suite_table_name(int32_t id) {
  const TableLine* row = FindTable(id);
  return row == nullptr ? nullptr : row->name;
}

ravo_status ravo_suite_table_find_column(const ravo_column* column, uint32_t flags, int32_t* ids,
                                         ravo_answers* answers, ravo_progress progress, void* context,
                                         ravo_error* error) {
  return Guarded(error, [&] {
    return ravo::c::AnswerNumbers<ravo::c::kTexts>(column, {flags, progress, context}, ids, answers, error,
                                                   TableOfName);
  });
}

size_t ravo_suite_caption_count(void) { return kCaptions.size(); }

ravo_status ravo_suite_caption_at(size_t index, ravo_suite_caption* caption, ravo_error* error) {
  if (!IsKnown(caption)) return FailStruct(error);
  if (index >= kCaptions.size()) return FailUnknown(error, "there are fewer captions");
  return FillCaption(caption, kCaptions[index]);
}

ravo_status ravo_suite_caption_find(const char* name, size_t name_length, ravo_suite_caption* caption,
                                    ravo_error* error) {
  if (!IsKnown(caption)) return FailStruct(error);
  const auto [input, status] = ReadText(name, name_length, error);
  if (status != RAVO_OK) return status;
  const std::string_view wanted = input;
  const auto* const row =
      std::ranges::find_if(kCaptions, [wanted](const CaptionLine& line) { return wanted == line.name; });
  if (row == kCaptions.end()) return FailUnknown(error, "there is no caption of that name");
  return FillCaption(caption, *row);
}
