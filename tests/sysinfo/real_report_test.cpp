#include "support/pe_builder.h"
#include "support/scratch_folder.h"
#include <ravo/platform/paths.h>
#include <ravo/runtime/string_list.h>
#include <ravo/runtime/text.h>
#include <ravo/sysinfo/system_info.h>

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ravo::RavoInterfaceInfo {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

// Sets the current folder for the lifetime of this object.
class CurrentFolder {
 public:
  explicit CurrentFolder(const std::filesystem::path& folder) { std::filesystem::current_path(folder); }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;
  ~CurrentFolder() { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

std::u16string FullName(std::u16string_view name) {
  return std::filesystem::current_path().u16string() + platform::Paths().PathDelimiter() +
         std::u16string(name);
}

// Returns the lines about a file of the current folder in the report of the real machine, as UTF-8 and
// without their indent.
std::vector<std::string> BlockOf(std::u16string_view name) {
  StringList report;
  report.SetText(TRavoSystemInfo().AsText(siVisual));
  std::vector<std::string> block;
  for (const std::u16string& line : report) {
    const bool is_head = line == u"\t\t\t" + FullName(name);
    if (!is_head && (block.empty() || !line.starts_with(u"\t\t\t\t"))) continue;
    block.push_back(ToUtf8(Trimmed(line)));
  }
  return block;
}

TEST(RealReport, ListsAFileWithTheStringsOfItsVersionResource) {
  const test::ScratchFolder folder;
  const auto image = test::BuildPe(test::PeKind::Pe32, test::VersionBlock(u"040504B0",
                                                                          {{u"CompanyName", u"Účtárna"},
                                                                           {u"FileDescription", u"Vývoz"},
                                                                           {u"FileVersion", u"1.2.3.4"},
                                                                           {u"InternalName", u"x"},
                                                                           {u"LegalCopyright", u"© my"},
                                                                           {u"OriginalFilename", u"y.bpl"},
                                                                           {u"ProductName", u"Ravo"},
                                                                           {u"ProductVersion", u"1.2"}},
                                                                          {0x04B00405}));
  folder.Write("RavoExport.bpl", {reinterpret_cast<const char*>(image.bytes.data()), image.bytes.size()});
  const CurrentFolder current(folder.Path());
  EXPECT_THAT(
      BlockOf(u"RavoExport.bpl"),
      ElementsAre(ToUtf8(FullName(u"RavoExport.bpl")),
                  "Velikost: " + std::to_string(image.bytes.size()) + " B", StartsWith("Datum/čas: "),
                  "Atributy: 00000020", "Verze souboru", "CompanyName: Účtárna", "FileDescription: Vývoz",
                  "FileVersion: 1.2.3.4", "InternalName:", "LegalCopyright: © my", "OriginalFilename: y.bpl",
                  "ProductName: Ravo", "ProductVersion: 1.2"));
  EXPECT_EQ(TRavoSystemInfo().FileVersion(u"RavoExport.bpl"), u"1.2.3.4");
}

#ifdef RAVO_TEST_PACKAGE

// The tests run in the folder of our own package.
TEST(RealReport, ListsOurOwnPackage) {
  const std::u16string name = FromUtf8(RAVO_TEST_PACKAGE);
  const std::string size = std::to_string(std::filesystem::file_size(RAVO_TEST_PACKAGE));
  EXPECT_THAT(
      BlockOf(name),
      ElementsAre(ToUtf8(FullName(name)), "Velikost: " + size + " B", StartsWith("Datum/čas: "),
                  StartsWith("Atributy: "), "Verze souboru", "CompanyName: RavoInterface",
                  "FileDescription: Společná knihovna rozhraní účetního systému",
                  testing::MatchesRegex("FileVersion: .+\\..+\\..+\\..+"), "InternalName: RavoInterface",
                  "LegalCopyright: © autoři knihovny RavoInterface", "OriginalFilename: RavoInterface.bpl",
                  "ProductName: RavoInterface", StartsWith("ProductVersion: ")));
}

#endif

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
