#include <ravo/RavoManager_TLB.h>
#include <ravo/RavoProfileInfo_TLB.h>
#include <ravo/RavoZip_TLB.h>
#include <ravo/hostapi/interface_list.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace ravo {
namespace {

struct ExpectedInterface {
  std::string_view module;
  std::string_view name;
  std::string_view base;
  std::string_view kind;
  std::string_view identifier;
  int own_operations;
};

constexpr ExpectedInterface kExpected[] = {
#define EXPECTED_INTERFACE(module, name, base, kind, identifier, operations) \
  {module, #name, base, kind, identifier, operations},
#include "interfaces_expected.inc"
#undef EXPECTED_INTERFACE
};

std::string ModuleOf(std::string_view library) { return std::string(library) + "_TLB"; }

TEST(HostInterfaceRows, AreTheExpectedOnesInTheirOrder) {
  const auto rows = HostInterfaceRows();
  ASSERT_EQ(rows.size(), 59U);
  ASSERT_EQ(std::size(kExpected), 59U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const HostInterfaceRow& row = rows[i];
    const ExpectedInterface& expected = kExpected[i];
    EXPECT_EQ(row.name, expected.name);
    EXPECT_EQ(ModuleOf(row.library), expected.module) << row.name;
    EXPECT_EQ(row.base, expected.base) << row.name;
    EXPECT_EQ(InterfaceKindName(row.kind), expected.kind) << row.name;
    EXPECT_EQ(ToUtf8(row.identifier.ToText()), expected.identifier) << row.name;
    EXPECT_EQ(row.own_operations, expected.own_operations) << row.name;
  }
}

struct Declared {
  std::string_view module;
  Guid constant;
  Guid identifier;
  Guid twin_identifier;
  int own_operations;
  int twin_own_operations;
  bool is_dual;
  bool twin_is_dual;
};

template <class Interface, class Twin>
constexpr Declared Facts(std::string_view module, const Guid& constant) {
  static_assert(std::is_abstract_v<Interface> && !std::is_same_v<Interface, Twin>);
  return {module,
          constant,
          Interface::kInterfaceId,
          Twin::kInterfaceId,
          Interface::kOwnOperations,
          Twin::kOwnOperations,
          std::is_base_of_v<IDispatch, Interface>,
          std::is_base_of_v<IDispatch, Twin>};
}

// The names that modules use, each in the namespace of its module.
constexpr Declared kDeclared[] = {
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) \
  Facts<library##_TLB::name, library##_TLB::name##Disp>(#library "_TLB", library##_TLB::IID_##name),
#include <ravo/hostapi/interfaces.inc>
};

TEST(HostInterfaces, AreDeclaredAsExpected) {
  ASSERT_EQ(std::size(kDeclared), std::size(kExpected));
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    const Declared& declared = kDeclared[i];
    const ExpectedInterface& expected = kExpected[i];
    EXPECT_EQ(declared.module, expected.module) << expected.name;
    EXPECT_EQ(ToUtf8(declared.constant.ToText()), expected.identifier) << expected.name;
    EXPECT_EQ(declared.identifier, declared.constant) << expected.name;
    EXPECT_EQ(declared.own_operations, expected.own_operations) << expected.name;
    EXPECT_EQ(declared.is_dual, expected.kind == "dual") << expected.name;
  }
}

TEST(HostInterfaces, AndTheirTwinsAnswerToTheSameIdentifier) {
  for (const Declared& declared : kDeclared) {
    EXPECT_EQ(declared.twin_identifier, declared.identifier);
    EXPECT_EQ(declared.twin_own_operations, declared.own_operations);
    EXPECT_EQ(declared.twin_is_dual, declared.is_dual);
  }
}

TEST(HostInterfaces, HaveIdentifiersOf16BytesInMemoryOrder) {
  constexpr std::array<std::uint8_t, 16> bytes{0xB6, 0x0B, 0x4F, 0x90, 0x48, 0xAB, 0x2D, 0x49,
                                               0xBF, 0xF6, 0x09, 0xA9, 0x44, 0xEA, 0x24, 0xC9};
  EXPECT_EQ(RavoZip_TLB::IID_IRavoZip.bytes, bytes);
  for (const Declared& declared : kDeclared) EXPECT_EQ(sizeof(declared.identifier), 16U);
}

TEST(HostInterfaces, TheProfileIsCustom) {
  static_assert(!std::is_base_of_v<IDispatch, RavoManager_TLB::IRavoProfile>);
  static_assert(std::is_base_of_v<IUnknown, RavoManager_TLB::IRavoProfile>);
  const auto rows = HostInterfaceRows();
  const auto profile = std::ranges::find(rows, "IRavoProfile", &HostInterfaceRow::name);
  ASSERT_NE(profile, rows.end());
  EXPECT_EQ(profile->base, "IUnknown");
  EXPECT_EQ(profile->kind, InterfaceKind::Custom);
}

#define NO_OPERATIONS(OPERATION)
RAVO_OPERATIONS(HostFirmEvents, RavoManager_TLB::IRavoFirmEvents, NO_OPERATIONS);

TEST(HostInterfaces, FirmEventsAddNoOperation) {
  EXPECT_EQ(RavoManager_TLB::IRavoFirmEvents::kOwnOperations, 0);
  static_assert(std::is_base_of_v<IUnknown, HostFirmEvents>);
  EXPECT_EQ(std::ranges::count(HostInterfaceRows(), 0, &HostInterfaceRow::own_operations), 1);
}

struct ExpectedClass {
  std::string_view factory;
  std::string_view constant;
  std::string_view identifier;
  std::string_view returned;
};

constexpr ExpectedClass kExpectedClasses[] = {
#define EXPECTED_CLASS(factory, constant, identifier, returned) {#factory, #constant, identifier, #returned},
#include "classes_expected.inc"
#undef EXPECTED_CLASS
};

constexpr Guid kClassConstants[] = {
#define RAVO_HOST_CLASS(library, name, returned, identifier) library##_TLB::CLASS_##name,
#include <ravo/hostapi/interfaces.inc>
};

TEST(HostClassRows, AreTheExpectedOnes) {
  const auto rows = HostClassRows();
  ASSERT_EQ(rows.size(), 10U);
  ASSERT_EQ(std::size(kExpectedClasses), 10U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const ExpectedClass& expected = kExpectedClasses[i];
    EXPECT_EQ("Co" + std::string(rows[i].name), expected.factory);
    EXPECT_EQ("CLASS_" + std::string(rows[i].name), expected.constant);
    EXPECT_EQ(ToUtf8(rows[i].identifier.ToText()), expected.identifier);
    EXPECT_EQ(kClassConstants[i], rows[i].identifier);
    EXPECT_EQ(rows[i].returned, expected.returned);
  }
}

TEST(HostClassRows, AProfileInformationIsNotItsInterface) {
  EXPECT_EQ(ToUtf8(RavoProfileInfo_TLB::CLASS_RavoProfileInformation.ToText()),
            "{B8C01FAF-7FD1-11D3-8389-0000E87DD3E0}");
  EXPECT_EQ(ToUtf8(RavoProfileInfo_TLB::IID_IRavoProfileInfo.ToText()),
            "{B8C01FA5-7FD1-11D3-8389-0000E87DD3E0}");
}

TEST(TypeLibraryRows, AreThree) {
  const auto rows = TypeLibraryRows();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].name, "RavoManager");
  EXPECT_EQ(rows[0].identifier, RavoManager_TLB::LIBID_RavoManager);
  EXPECT_EQ(ToUtf8(rows[0].identifier.ToText()), "{7CAEF350-8153-11D3-838D-0000E87DD3E0}");
  EXPECT_EQ(rows[1].name, "RavoProfileInfo");
  EXPECT_EQ(rows[1].identifier, RavoProfileInfo_TLB::LIBID_RavoProfileInfo);
  EXPECT_EQ(ToUtf8(rows[1].identifier.ToText()), "{B8C01FA4-7FD1-11D3-8389-0000E87DD3E0}");
  EXPECT_EQ(rows[2].name, "RavoZip");
  EXPECT_EQ(rows[2].identifier, RavoZip_TLB::LIBID_RavoZip);
  EXPECT_EQ(ToUtf8(rows[2].identifier.ToText()), "{A823255B-9316-4AAB-89B7-01D520F12983}");
}

constexpr Guid kAllIdentifiers[] = {
#define RAVO_TYPE_LIBRARY(library, identifier) library##_TLB::LIBID_##library,
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) library##_TLB::IID_##name,
#define RAVO_HOST_CLASS(library, name, returned, identifier) library##_TLB::CLASS_##name,
#include <ravo/hostapi/interfaces.inc>
};

// Checked at compile time, so a program with two equal identifiers cannot be built.
constexpr bool AllDifferent(std::span<const Guid> identifiers) {
  for (std::size_t i = 0; i < identifiers.size(); ++i) {
    if (std::ranges::count(identifiers, identifiers[i]) != 1) return false;
  }
  return true;
}
constexpr Guid kTwoEqual[] = {kAllIdentifiers[0], kAllIdentifiers[1], kAllIdentifiers[0]};
static_assert(AllDifferent(kAllIdentifiers));
static_assert(!AllDifferent(kTwoEqual));
static_assert(std::ranges::all_of(kDeclared, [](const Declared& declared) {
  return declared.identifier == declared.constant && declared.twin_identifier == declared.constant &&
         sizeof(declared.constant) == 16;
}));
static_assert(RavoManager_TLB::IRavoFirmEvents::kOwnOperations == 0);

TEST(Identifiers, OfLibrariesInterfacesAndClassesAreAllDifferent) {
  EXPECT_EQ(std::size(kAllIdentifiers), 3U + 59U + 10U);
  const auto is_listed = [](const auto& row) {
    return std::ranges::count(kAllIdentifiers, row.identifier) == 1;
  };
  EXPECT_TRUE(std::ranges::all_of(TypeLibraryRows(), is_listed));
  EXPECT_TRUE(std::ranges::all_of(HostInterfaceRows(), is_listed));
  EXPECT_TRUE(std::ranges::all_of(HostClassRows(), is_listed));
}

// Each of the four collections of the profile adds five operations.
TEST(HostInterfaces, CollectionsOfTheProfileAddFive) {
  for (const std::string_view name :
       {"IRavoProfileModules", "IRavoProfilePackages", "IRavoProfilePlugins", "IRavoProfileOperations"}) {
    const auto rows = HostInterfaceRows();
    const auto row = std::ranges::find(rows, name, &HostInterfaceRow::name);
    ASSERT_NE(row, rows.end()) << name;
    EXPECT_EQ(row->own_operations, 5) << name;
  }
}

}  // namespace
}  // namespace ravo
