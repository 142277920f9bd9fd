#include <ravo/frame/units.h>
#include <ravo/package.h>
#include <ravo/utils/german_days.h>
#include <ravo/utils/system_compat.h>

#include <map>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <support/allocation_count.h>
#include <support/fake_machine.h>

namespace ravo::frame {
namespace {

constexpr std::string_view kContainedNames[] = {
#include "../support/module_names.inc"
};

using Procedure = void (*)();

std::map<Procedure, std::string_view> NamesByInitializer() {
  return {
#define RAVO_MODULE(name, flags, uses) {name##_Initialize, #name},
#include <ravo/frame/modules.inc>
#undef RAVO_MODULE
  };
}

std::map<std::string_view, int> SlotsByName() {
  const RavoPackageInfoTable& table = *GetPackageInfoTable();
  const auto names = NamesByInitializer();
  std::map<std::string_view, int> slots;
  for (int slot = 0; slot < table.UnitCount; ++slot) {
    if (const auto at = names.find(table.UnitInfo[slot].Initialize); at != names.end())
      slots[at->second] = slot;
  }
  return slots;
}

std::u16string Text(const std::uint16_t* units) {
  std::u16string text;
  for (; *units; ++units) text.push_back(static_cast<char16_t>(*units));
  return text;
}

TEST(GetPackageInfoTable, HasTheRuntimeSlotsEmptyAndThenOnePerModule) {
  const RavoPackageInfoTable& table = *GetPackageInfoTable();
  ASSERT_EQ(table.UnitCount, 105);
  for (int slot = 0; slot < 77; ++slot) {
    EXPECT_EQ(table.UnitInfo[slot].Initialize, nullptr);
    EXPECT_EQ(table.UnitInfo[slot].Finalize, nullptr);
  }
  const auto slots = SlotsByName();
  EXPECT_EQ(slots.size(), 28U);
  for (const auto& [name, slot] : slots) EXPECT_GE(slot, 77) << name;
}

TEST(GetPackageInfoTable, SlotsComeAfterTheSlotsOfWhatTheirModulesUse) {
  const auto slots = SlotsByName();
  int arrows = 0;
  for (const ModuleRow& row : kModules) {
    for (std::string_view uses = row.uses; !uses.empty(); ++arrows) {
      const std::string_view used = TakeName(uses);
      EXPECT_LT(slots.at(used), slots.at(row.name)) << row.name << " uses " << used;
    }
  }
  EXPECT_GE(arrows, 27);
  EXPECT_EQ(slots.at("SysInit"), 77);
  EXPECT_EQ(slots.at("RavoInterface"), 104);
}

TEST(GetPackageInfoTable, DescribesThePackage) {
  const RavoPackageDescription& description = *GetPackageInfoTable()->Description;
  EXPECT_EQ(description.Flags,
            std::uint32_t{RAVO_PACKAGE_RUN_ONLY | RAVO_PACKAGE_NEVER_BUILD | RAVO_PACKAGE_MODULE});
  ASSERT_EQ(description.RequiredCount, 2);
  EXPECT_STREQ(description.RequiredNames[0], "rtl140");
  EXPECT_STREQ(description.RequiredNames[1], "vcl140");
  ASSERT_EQ(description.ContainedCount, 28);
  for (int i = 0; i < 28; ++i) {
    EXPECT_EQ(description.Contained[i].Name, kContainedNames[i]);
    EXPECT_EQ(description.Contained[i].Flags, i == 0 ? RAVO_MODULE_MAIN : 0) << i;
  }
  EXPECT_EQ(Text(description.Text), u"RavoInterface");
  EXPECT_EQ(Text(description.TypeLibraryName), u"RavoInterface");
  EXPECT_EQ(Text(description.TypeLibraryHelp), u"RavoInterface Library");
  EXPECT_EQ(description.TypeLibraryLocale, 0x0409U);
}

TEST(GetPackageInfoTable, NamesAllModulesButTheMainOneAndNoTypes) {
  const RavoPackageTypeInfo& types = GetPackageInfoTable()->TypeInfo;
  EXPECT_EQ(types.TypeCount, 0);
  EXPECT_EQ(types.TypeTable, nullptr);
  ASSERT_EQ(types.UnitCount, 27);
  for (int i = 0; i < 27; ++i) EXPECT_EQ(types.UnitNames[i], kContainedNames[i + 1]);
}

TEST(GetPackageInfoTable, HasTheEightStringsOfTheVersionRecord) {
  const RavoPackageDescription& description = *GetPackageInfoTable()->Description;
  constexpr std::string_view keys[] = {"CompanyName",    "FileDescription",  "FileVersion", "InternalName",
                                       "LegalCopyright", "OriginalFilename", "ProductName", "ProductVersion"};
  ASSERT_EQ(description.VersionStringCount, 8);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(description.VersionStrings[i].Key, keys[i]);
    EXPECT_GT(Text(description.VersionStrings[i].Text).size(), 1U) << keys[i];
  }
  EXPECT_EQ(Text(description.VersionStrings[5].Text), u"RavoInterface.bpl");
}

TEST(GetPackageInfoTable, ShowsTheRecordOfTheLibrary) {
  const RavoModule* module = GetPackageInfoTable()->Module;
  ASSERT_NE(module, nullptr);
  EXPECT_NE(module->Instance, nullptr);
  EXPECT_EQ(module->ResInstance, module->Instance);
  EXPECT_EQ(module->CodeInstance, nullptr);
  EXPECT_EQ(module->DataInstance, nullptr);
}

std::vector<std::int32_t> Counters() {
  std::vector<std::int32_t> counters;
  for (std::size_t i = 0; i < kModules.size(); ++i) counters.push_back(ModuleCounter(static_cast<Module>(i)));
  return counters;
}

// The state at the start of the program: once released, the names do not return.
const auto kNarrowDays = utils::ShortGermanDaysA();
const auto kWideDays = utils::ShortGermanDaysW();

bool DaysAreReleased() {
  const auto is_empty = [](const auto& name) { return name.empty(); };
  return std::ranges::all_of(utils::ShortGermanDaysA(), is_empty) &&
         std::ranges::all_of(utils::ShortGermanDaysW(), is_empty);
}

TEST(Initialize, StartedTwiceAndStoppedOnceLeavesEveryModuleStarted) {
  EXPECT_EQ(Counters(), std::vector<std::int32_t>(28, 0));
  const auto days = utils::ShortGermanDaysA();
  Initialize();
  Initialize();
  EXPECT_EQ(Counters(), std::vector<std::int32_t>(28, -2));
  Finalize();
  EXPECT_EQ(Counters(), std::vector<std::int32_t>(28, -1));
  EXPECT_EQ(utils::ShortGermanDaysA(), days);
  Finalize();
  EXPECT_EQ(Counters(), std::vector<std::int32_t>(28, 0));
  EXPECT_TRUE(DaysAreReleased());
}

TEST(Initialize, RecordsTheSystemAtTheFirstStartOnly) {
  test::FakeMachine machine;
  const platform::ScopedMachine scoped(machine);
  machine.version.family = platform::SystemFamily::WindowsNt;
  machine.version.major = 5;
  machine.version.minor = 1;
  Initialize();
  machine.version.major = 6;
  Initialize();
  EXPECT_EQ(utils::RecordedSystem().platform_id, 2U);
  EXPECT_EQ(utils::RecordedSystem().major, 5U);
  EXPECT_EQ(utils::RecordedSystem().minor, 1U);
  Finalize();
  Finalize();
  EXPECT_TRUE(machine.unloaded.empty());
  Initialize();
  EXPECT_EQ(utils::RecordedSystem().major, 6U);
  Finalize();
}

TEST(Initialize, NeedsNoMemory) {
  test::FakeMachine machine;
  machine.version.service_pack = u"a text too long for a string without memory of its own";
  for (const platform::Machine& asked : {platform::Machine(machine), platform::RealMachine()}) {
    const platform::ScopedMachine scoped(asked);
    const std::size_t before = test::AllocationCount();
    Initialize();
    Finalize();
    EXPECT_EQ(test::AllocationCount(), before);
  }
}

// Shows that the counter used above works.
TEST(Initialize, WouldBeSeenToNeedMemory) {
  test::FakeMachine machine;
  machine.version.service_pack = u"a text too long for a string without memory of its own";
  const std::size_t before = test::AllocationCount();
  static_cast<void>(machine.Version());
  EXPECT_EQ(test::AllocationCount() > before, test::kAllocationsCounted);
}

TEST(Initialize, StartsOneModuleOnItsOwn) {
  DIUtils_Initialize();
  EXPECT_EQ(ModuleCounter(Module::DIUtils), -1);
  EXPECT_EQ(ModuleCounter(Module::DISystemCompat), 0);
  DIUtils_Finalize();
  EXPECT_EQ(ModuleCounter(Module::DIUtils), 0);
}

TEST(Finalize, ReleasesTheGermanDayNamesThatWereThereAtFirst) {
  EXPECT_EQ(kNarrowDays, (std::array<std::string_view, 7>{"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"}));
  EXPECT_EQ(kWideDays, (std::array<std::u16string_view, 7>{u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"}));
  DIUtils_Initialize();
  DIUtils_Finalize();
  EXPECT_TRUE(DaysAreReleased());
}

// The module has work only when it stops.
TEST(Initialize, DoesNotBringTheGermanDayNamesBack) {
  for (int i = 0; i < 2; ++i) {
    DIUtils_Initialize();
    DIUtils_Finalize();
  }
  DIUtils_Initialize();
  EXPECT_TRUE(DaysAreReleased());
  DIUtils_Finalize();
}

TEST(Finalize, WithoutAStartRunsNoBodyAndTakesTheNextStartAway) {
  DIUtils_Initialize();
  DIUtils_Finalize();
  DIUtils_Finalize();
  EXPECT_EQ(ModuleCounter(Module::DIUtils), 1);
  DIUtils_Initialize();
  EXPECT_EQ(ModuleCounter(Module::DIUtils), 0);
  EXPECT_TRUE(DaysAreReleased());
}

}  // namespace
}  // namespace ravo::frame
