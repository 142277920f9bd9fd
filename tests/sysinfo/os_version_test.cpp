#include <ravo/sysinfo/os_version_of.h>

#include <string_view>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceInfo {
namespace {

using platform::ProductType;
using platform::SystemFamily;
using platform::SystemVersion;
using sysinfo::IsNt;
using sysinfo::OSVersionOf;

SystemVersion Record(SystemFamily family, std::uint32_t major, std::uint32_t minor) {
  SystemVersion version;
  version.family = family;
  version.major = major;
  version.minor = minor;
  return version;
}

TEST(GetOS, NtByNumbersAlone) {
  struct Row {
    std::uint32_t major;
    std::uint32_t minor;
    TOSVersion kind;
  };
  constexpr Row rows[] = {
      {0, 0, osUnknown}, {2, 0, osUnknown}, {3, 10, osNT3},    {3, 51, osNT3},     {4, 0, osNT4},
      {4, 10, osNT4},    {5, 0, os2K},      {5, 3, os2K},      {5, 90, os2K},      {5, 1, osXP},
      {6, 2, osUnknown}, {6, 3, osUnknown}, {7, 0, osUnknown}, {10, 0, osUnknown}, {11, 0, osUnknown},
  };
  for (const Row& row : rows) {
    const SystemVersion version = Record(SystemFamily::WindowsNt, row.major, row.minor);
    EXPECT_EQ(OSVersionOf(version, false, platform::kArchitectureIntel), row.kind)
        << row.major << '.' << row.minor;
  }
}

TEST(GetOS, NtByProductType) {
  struct Row {
    std::uint32_t minor;
    ProductType product;
    TOSVersion kind;
  };
  constexpr Row rows[] = {
      {0, ProductType::Workstation, osVista},        {0, ProductType::Server, osS2008},
      {0, ProductType::DomainController, osS2008},   {0, ProductType::Unknown, osS2008},
      {1, ProductType::Workstation, osW7},           {1, ProductType::Server, osS2008R2},
      {1, ProductType::DomainController, osS2008R2}, {1, ProductType::Unknown, osS2008R2},
      {2, ProductType::Workstation, osUnknown},
  };
  for (const Row& row : rows) {
    SystemVersion version = Record(SystemFamily::WindowsNt, 6, row.minor);
    version.product_type = row.product;
    EXPECT_EQ(OSVersionOf(version, false, platform::kArchitectureAmd64), row.kind);
  }
}

struct Nt52Row {
  bool is_server_r2;
  std::uint16_t suite_mask;
  ProductType product;
  std::uint16_t architecture;
  TOSVersion kind;
};

void Expect(const Nt52Row& row) {
  SystemVersion version = Record(SystemFamily::WindowsNt, 5, 2);
  version.suite_mask = row.suite_mask;
  version.product_type = row.product;
  EXPECT_EQ(OSVersionOf(version, row.is_server_r2, row.architecture), row.kind);
}

constexpr std::uint16_t kIntel = platform::kArchitectureIntel;
constexpr std::uint16_t kAmd64 = platform::kArchitectureAmd64;

TEST(GetOS, LaterTestsOverwriteInNt52) {
  constexpr Nt52Row rows[] = {
      {false, 0, ProductType::Server, kIntel, osS2003},
      {false, 0x7FFF, ProductType::Server, kIntel, osS2003},
      {true, 0, ProductType::Server, kIntel, osS2003R2},
      {true, 0x7FFF, ProductType::Server, kIntel, osS2003R2},
      {false, 0, ProductType::Workstation, kIntel, osS2003},
      {true, 0, ProductType::Workstation, kIntel, osS2003R2},
      {false, 0, ProductType::Workstation, 6, osS2003},
      {false, 0, ProductType::Server, kAmd64, osS2003},
      {false, 0, ProductType::Workstation, kAmd64, osXP64},
      {true, 0x8000, ProductType::Workstation, kAmd64, osXP64},
  };
  for (const Nt52Row& row : rows) Expect(row);
}

TEST(GetOS, HomeServerOnlyAsSecondRelease) {
  Expect({true, 0x8000, ProductType::Server, kIntel, osHS});
  Expect({true, 0x8002, ProductType::Workstation, kIntel, osHS});
  Expect({false, 0x8000, ProductType::Server, kIntel, osS2003});
}

TEST(GetOS, NotNt) {
  struct Row {
    std::uint32_t major;
    std::uint32_t minor;
    std::u16string_view service_pack;
    TOSVersion kind;
  };
  constexpr Row rows[] = {
      {4, 0, u"", os95},      {4, 0, u"A", os95},      {4, 0, u"B", os95OSR2}, {4, 0, u" B ", os95OSR2},
      {4, 0, u"b", os95},     {4, 0, u"BB", os95},     {4, 10, u"", os98},     {4, 10, u" A ", os98SE},
      {4, 10, u"A", os98SE},  {4, 10, u"B", os98},     {4, 90, u"", osME},     {4, 90, u"A", osME},
      {4, 1, u"", osUnknown}, {4, 91, u"", osUnknown}, {3, 0, u"", osUnknown}, {3, 10, u"A", osUnknown},
      {5, 0, u"", osUnknown}, {6, 1, u"", osUnknown},
  };
  for (const SystemFamily family : {SystemFamily::Win32s, SystemFamily::Windows9x}) {
    for (const Row& row : rows) {
      SystemVersion version = Record(family, row.major, row.minor);
      version.service_pack = row.service_pack;
      EXPECT_EQ(OSVersionOf(version, true, platform::kArchitectureAmd64), row.kind)
          << row.major << '.' << row.minor << testing::PrintToString(row.service_pack);
    }
  }
}

TEST(GetOS, OtherSystemsAreUnknownWhateverTheirNumbers) {
  for (std::uint32_t major = 0; major < 12; ++major) {
    for (const std::uint32_t minor : {0u, 1u, 2u, 10u, 90u}) {
      EXPECT_EQ(OSVersionOf(Record(SystemFamily::Other, major, minor), true, kAmd64), osUnknown);
    }
  }
}

TEST(TOSVersion, MembersAreNumberedFromZero) {
  constexpr TOSVersion kinds[] = {osUnknown, os95,      os95OSR2, os98,    os98SE,    osNT3,
                                  osNT4,     os2K,      osME,     osXP,    osXP64,    osS2003,
                                  osHS,      osS2003R2, osVista,  osS2008, osS2008R2, osW7};
  for (int i = 0; i < 18; ++i) EXPECT_EQ(kinds[i], i);
}

TEST(IsNt, EveryKind) {
  for (const TOSVersion kind : {osUnknown, os95, os95OSR2, os98, os98SE, osME})
    EXPECT_FALSE(IsNt(kind)) << kind;
  for (const TOSVersion kind :
       {osNT3, osNT4, os2K, osXP, osXP64, osS2003, osHS, osS2003R2, osVista, osS2008, osS2008R2, osW7}) {
    EXPECT_TRUE(IsNt(kind)) << kind;
  }
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
