#include "support/allocation_count.h"
#include <ravo/RavoBaseConstants.h>
#include <ravo/RavoBoxConstants.h>
#include <ravo/RavoDCFConstants.h>
#include <ravo/RavoKancelarConstants.h>
#include <ravo/RavoMajetekConstants.h>
#include <ravo/RavoMzdaConstants.h>
#include <ravo/RavoProfileConstants.h>
#include <ravo/RavoRSSConstants.h>
#include <ravo/RavoSkladConstants.h>
#include <ravo/RavoUcetnictviConstants.h>
#include <ravo/catalogue/table_catalogue.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <limits>
#include <map>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using RavoInterfaceCommon::GetTableDescription;

constexpr TableRow kExpectedRows[] = {
#include "tables_expected.inc"
};

struct ModuleLookUp {
  TableModule module;
  std::string_view name;
  std::u16string (*description)(std::int32_t);
  std::size_t rows;
};

// In the fixed order of the dispatcher.
constexpr ModuleLookUp kModules[] = {
    {TableModule::Profil, "RavoProfileConstants", RavoProfileConstants::GetProfilTableDescription, 21},
    {TableModule::RSS, "RavoRSSConstants", RavoRSSConstants::GetRSSTableDescription, 5},
    {TableModule::DCF, "RavoDCFConstants", RavoDCFConstants::GetDCFTableDescription, 6},
    {TableModule::Base, "RavoBaseConstants", RavoBaseConstants::GetBaseTableDescription, 32},
    {TableModule::Ucetnictvi, "RavoUcetnictviConstants",
     RavoUcetnictviConstants::GetUcetnictviTableDescription, 20},
    {TableModule::Kancelar, "RavoKancelarConstants", RavoKancelarConstants::GetKancelarTableDescription, 22},
    {TableModule::Majetek, "RavoMajetekConstants", RavoMajetekConstants::GetMajetekTableDescription, 11},
    {TableModule::Mzda, "RavoMzdaConstants", RavoMzdaConstants::GetMzdaTableDescription, 43},
    {TableModule::Sklad, "RavoSkladConstants", RavoSkladConstants::GetSkladTableDescription, 61},
    {TableModule::Box, "RavoBoxConstants", RavoBoxConstants::GetBoxTableDescription, 36},
};

constexpr std::int32_t kFirst = -10;
constexpr std::int32_t kLast = 250000;

struct Expected {
  TableModule module;
  std::u16string_view description;
};

std::map<std::int32_t, Expected> ExpectedById() {
  std::map<std::int32_t, Expected> tables;
  for (const TableRow& row : kExpectedRows) {
    for (std::int32_t id = row.first; id <= row.last; ++id) tables[id] = {row.module, row.description};
  }
  return tables;
}

// The dispatcher as documented: asks each module in turn until one returns a text.
std::u16string FirstAnswer(std::int32_t id) {
  std::u16string result;
  for (const ModuleLookUp& module : kModules) {
    if (result.empty()) result = module.description(id);
  }
  return result;
}

TEST(TableRows, AreTheWholeCatalogueInOrder) {
  const auto rows = TableRows();
  ASSERT_EQ(rows.size(), std::size(kExpectedRows));
  ASSERT_EQ(rows.size(), 257U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].module, kExpectedRows[i].module) << i;
    EXPECT_EQ(rows[i].first, kExpectedRows[i].first) << i;
    EXPECT_EQ(rows[i].last, kExpectedRows[i].last) << i;
    EXPECT_EQ(rows[i].description, kExpectedRows[i].description) << i;
  }
}

TEST(TableRows, NameNoIdentifierTwice) {
  std::map<std::int32_t, int> rows_of;
  for (const TableRow& row : TableRows()) {
    for (std::int32_t id = row.first; id <= row.last; ++id) ++rows_of[id];
  }
  EXPECT_EQ(rows_of.size(), 263U);
  for (const auto& [id, rows] : rows_of) EXPECT_EQ(rows, 1) << id;
}

TEST(TableModules, StandInTheDispatchersOrder) {
  ASSERT_EQ(TableModules().size(), std::size(kModules));
  for (std::size_t i = 0; i < std::size(kModules); ++i) {
    const ModuleLookUp& expected = kModules[i];
    EXPECT_EQ(TableModules()[i], expected.module);
    EXPECT_EQ(TableModuleName(expected.module), expected.name);
    const auto is_own = [&](const TableRow& row) { return row.module == expected.module; };
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(TableRows(), is_own)), expected.rows)
        << expected.name;
  }
}

TEST(GetTableDescription, EdgeCases) {
  struct Row {
    std::int32_t id;
    std::u16string_view description;
  };
  constexpr Row rows[] = {
      {0, u""},
      {-1, u""},
      {-10110, u""},
      {999999, u""},
      {std::numeric_limits<std::int32_t>::min(), u""},
      {std::numeric_limits<std::int32_t>::max(), u""},
      {10109, u""},
      {10110, u"Profil"},
      {10111, u""},
      {21000, u""},
      {72510, u"Převodní príkazy"},
      {100119, u""},
      {100120, u"Osoby u firmy"},
      {100121, u"Osoby u firmy"},
      {100123, u"Osoby u firmy"},
      {100124, u""},
      {100129, u""},
      {100130, u"Kontaktní informace na firmu"},
      {100133, u"Kontaktní informace na firmu"},
      {100134, u""},
      {208200, u"Nastavení pro uživatele Boxu"},
  };
  for (const Row& row : rows) EXPECT_EQ(GetTableDescription(row.id), row.description) << row.id;
}

TEST(GetTableDescription, KeepsTheTrailingBlankOf110120) {
  EXPECT_EQ(GetTableDescription(110120), u"Složky pro RSS zdroje ");
  EXPECT_EQ(RavoRSSConstants::GetRSSTableDescription(110120), u"Složky pro RSS zdroje ");
}

TEST(GetTableDescription, KeepsIrregularSpellings) {
  struct Row {
    std::int32_t id;
    std::u16string_view description;
  };
  constexpr Row rows[] = {
      {10330, u"Číselnik obcí"},
      {21240, u"Číselník umístnění"},
      {31710, u"Fakturace"},
      {55520, u"Rekapitilace nepřítomností"},
      {57200, u"Socialní pojišťění"},
      {61800, u"Číselník finančných slev"},
      {63210, u"Položeky v kategorii"},
      {72400, u"Bankovní Výpisy"},
      {75100, u"Návrhy vzajemneho započtu"},
      {204900, u"Archív smazaných a prejmenovaných firem"},
  };
  for (const Row& row : rows) EXPECT_EQ(GetTableDescription(row.id), row.description) << row.id;
}

TEST(GetTableDescription, IsTheFirstAnswerInTheFixedOrder) {
  const auto expected = ExpectedById();
  for (std::int32_t id = kFirst; id <= kLast; ++id) {
    const auto known = expected.find(id);
    const std::u16string_view description = known == expected.end() ? u"" : known->second.description;
    ASSERT_EQ(GetTableDescription(id), description) << id;
    ASSERT_EQ(FirstAnswer(id), description) << id;
  }
}

TEST(GetTableDescription, OfEachModuleKnowsItsOwnTablesOnly) {
  const auto expected = ExpectedById();
  for (const ModuleLookUp& look_up : kModules) {
    for (std::int32_t id = kFirst; id <= kLast; ++id) {
      const auto known = expected.find(id);
      const bool own = known != expected.end() && known->second.module == look_up.module;
      const std::u16string_view description = own ? known->second.description : u"";
      ASSERT_EQ(TableDescription(look_up.module, id), description) << look_up.name << ' ' << id;
      ASSERT_EQ(look_up.description(id), description) << look_up.name << ' ' << id;
    }
  }
}

TEST(GetTableDescription, OfTheAccountingModuleLeavesOfficeTablesAmongItsNumbersAlone) {
  EXPECT_EQ(RavoUcetnictviConstants::GetUcetnictviTableDescription(72510), u"");
  EXPECT_EQ(RavoKancelarConstants::GetKancelarTableDescription(72510), u"Převodní príkazy");
}

TEST(TableDescription, AllocatesNothing) {
  if (!test::kAllocationsCounted) GTEST_SKIP() << "a sanitizer has the allocator";
  std::size_t length = 0;
  const std::size_t before = test::AllocationCount();
  for (std::int32_t id = kFirst; id <= kLast; ++id) {
    length +=
        RavoInterfaceCommon::TableDescription(id).size() + TableDescription(TableModule::Mzda, id).size();
  }
  EXPECT_EQ(test::AllocationCount(), before);
  EXPECT_GT(length, 0U);
}

TEST(GetTableDescription, AllocatesItsResultOnly) {
  if (!test::kAllocationsCounted) GTEST_SKIP() << "a sanitizer has the allocator";
  const std::size_t before = test::AllocationCount();
  const std::u16string description = GetTableDescription(204900);
  EXPECT_EQ(test::AllocationCount(), before + 1) << ToUtf8(description);
}

}  // namespace
}  // namespace ravo
