#include <ravo/frame/module_record.h>
#include <ravo/frame/modules.h>
#include <ravo/frame/package/description.h>
#include <ravo/frame/project_version.h>
#include <ravo/frame/unit_walk.h>
#include <ravo/package.h>
#include <ravo/runtime/utf16_units.h>

#include <algorithm>
#include <array>

namespace ravo::frame {
namespace {

#define RAVO_UTF16(text) u##text

constexpr auto kText = Utf16Units(u"" RAVO_DESCRIPTION_TEXT);
constexpr auto kTypeLibraryName = Utf16Units(u"" RAVO_TYPE_LIBRARY_NAME);
constexpr auto kTypeLibraryHelp = Utf16Units(u"" RAVO_TYPE_LIBRARY_HELP);

#define RAVO_VERSION_STRING(key, text) constexpr auto k##key = Utf16Units(RAVO_UTF16(text));
#include <ravo/frame/version.inc>
#undef RAVO_VERSION_STRING

constexpr auto kVersionStrings = std::to_array<RavoVersionString>({
#define RAVO_VERSION_STRING(key, text) {#key, k##key.data()},
#include <ravo/frame/version.inc>
#undef RAVO_VERSION_STRING
});

constexpr auto kRequired = std::to_array<const char*>({
#define RAVO_REQUIRED(name) #name,
#include <ravo/frame/required.inc>
#undef RAVO_REQUIRED
});

constexpr auto kContained = [] {
  std::array<RavoPackageModule, kModules.size()> contained{};
  std::ranges::transform(kModules, contained.begin(), [](const ModuleRow& row) {
    return RavoPackageModule{row.flags, row.name};
  });
  return contained;
}();

constexpr auto kUnitNames = [] {
  std::array<const char*, kModules.size() - 1> names{};
  auto name = names.begin();
  for (const ModuleRow& row : kModules) {
    if ((row.flags & RAVO_MODULE_MAIN) == 0) *name++ = row.name;
  }
  return names;
}();

constexpr auto kProcedures = std::to_array<RavoPackageUnit>({
#define RAVO_MODULE(name, flags, uses) {name##_Initialize, name##_Finalize},
#include <ravo/frame/modules.inc>
#undef RAVO_MODULE
});

constexpr auto kUnits = [] {
  std::array<RavoPackageUnit, kSlotCount> units{};
  std::ranges::transform(kModuleOrder, units.begin() + kRuntimeSlots,
                         [](std::size_t row) { return kProcedures[row]; });
  return units;
}();

constexpr RavoPackageDescription kDescription = {
    RAVO_PACKAGE_FLAGS,       kRequired.size(),       kRequired.data(),        kContained.size(),
    kContained.data(),        kText.data(),           kTypeLibraryName.data(), kTypeLibraryHelp.data(),
    RAVO_TYPE_LIBRARY_LOCALE, kVersionStrings.size(), kVersionStrings.data(),
};

constexpr RavoPackageInfoTable kTable = {kUnits.size(),
                                         kUnits.data(),
                                         {0, nullptr, kUnitNames.size(), kUnitNames.data()},
                                         &kDescription,
                                         &library_module};

}  // namespace
}  // namespace ravo::frame

const RavoPackageInfoTable* GetPackageInfoTable() {
  static_cast<void>(ravo::frame::LibraryModule());
  return &ravo::frame::kTable;
}

void Initialize() { ravo::frame::StartUnits(ravo::frame::kUnits); }

void Finalize() { ravo::frame::StopUnits(ravo::frame::kUnits); }
