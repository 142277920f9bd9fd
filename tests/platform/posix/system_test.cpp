#include <ravo/platform/posix/system.h>
#include <ravo/platform/posix/user.h>

#include <gtest/gtest.h>

namespace ravo::platform::posix {
namespace {

TEST(VersionFromRelease, SplitsNumbersAndTheRest) {
  struct Row {
    std::string_view release;
    std::uint32_t major, minor, build;
    std::u16string_view rest;
  };
  constexpr Row rows[] = {
      {"6.1.0-13-amd64", 6, 1, 0, u"13-amd64"},
      {"5.15.167.4-microsoft-standard-WSL2", 5, 15, 167, u".4-microsoft-standard-WSL2"},
      {"6.1-rc3", 6, 1, 0, u"rc3"},
      {"4.19.0", 4, 19, 0, u""},
      {"6.8.0+", 6, 8, 0, u"+"},
      {"7", 7, 0, 0, u""},
      {"6.", 6, 0, 0, u"."},
      {"6..1", 6, 0, 0, u"..1"},
      {"99999999999.1.2", 0xFFFFFFFF, 1, 2, u""},
      {"next", 0, 0, 0, u"next"},
      {"", 0, 0, 0, u""},
  };
  for (const Row& row : rows) {
    const SystemVersion version = VersionFromRelease(row.release);
    EXPECT_EQ(version.family, SystemFamily::Other);
    EXPECT_EQ(version.major, row.major) << row.release;
    EXPECT_EQ(version.minor, row.minor) << row.release;
    EXPECT_EQ(version.build, row.build) << row.release;
    EXPECT_EQ(version.service_pack, row.rest) << row.release;
  }
}

TEST(VersionFromRelease, TheRestIsCutAt127Units) {
  EXPECT_EQ(VersionFromRelease("1.2.3-" + std::string(127, 'x')).service_pack, std::u16string(127, u'x'));
  EXPECT_EQ(VersionFromRelease("1.2.3-" + std::string(128, 'x')).service_pack, std::u16string(127, u'x'));
}

TEST(ArchitectureFromMachineName, KnowsTheNumberedOnes) {
  EXPECT_EQ(ArchitectureFromMachineName("x86_64"), 9);
  for (const char* name : {"i386", "i486", "i586", "i686"}) EXPECT_EQ(ArchitectureFromMachineName(name), 0);
  for (const char* name : {"", "i286", "i786", "i687", "a686", "i6866", "aarch64", "x86_64x"}) {
    EXPECT_EQ(ArchitectureFromMachineName(name), 0xFFFF) << name;
  }
}

TEST(FullNameOf, StandsBeforeTheFirstComma) {
  EXPECT_EQ(FullNameOf("Jan Novák,1.patro,,"), "Jan Novák");
  EXPECT_EQ(FullNameOf("Jan"), "Jan");
  EXPECT_EQ(FullNameOf(",,,"), "");
  EXPECT_EQ(FullNameOf(""), "");
}

}  // namespace
}  // namespace ravo::platform::posix
