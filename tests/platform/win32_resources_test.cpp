#ifdef _WIN32

#include <ravo/platform/folders.h>
#include <ravo/platform/library_entry.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/resources.h>
#include <ravo/runtime/text.h>

#include <gtest/gtest.h>
#include <windows.h>

namespace ravo::platform {
namespace {

// Lies in the folder of this program.
std::u16string ResourceFile() {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring path(program);
  path.resize(path.rfind(L'\\') + 1);
  path += L"test_platform_resources.dll";
  return {path.begin(), path.end()};
}

class LoadedResources {
 public:
  LoadedResources() : module_(Resources().LoadResources(ResourceFile())) {}
  ~LoadedResources() { Resources().UnloadResources(module_); }
  [[nodiscard]] ModuleHandle Module() const { return module_; }

 private:
  ModuleHandle module_;
};

TEST(Win32Resources, TextsOfALoadedModule) {
  const LoadedResources resources;
  ASSERT_TRUE(resources.Module());
  EXPECT_EQ(Resources().ResourceText(resources.Module(), 65408), u"Účet");
  EXPECT_EQ(Resources().ResourceText(resources.Module(), 65535), u"Příliš žluťoučký kůň\nпоследний");
}

TEST(Win32Resources, NoneWhereTheTableIsEmptyOrMissing) {
  const LoadedResources resources;
  EXPECT_FALSE(Resources().ResourceText(resources.Module(), 65409));
  EXPECT_FALSE(Resources().ResourceText(resources.Module(), 65410));
  EXPECT_FALSE(Resources().ResourceText(resources.Module(), 0));
  EXPECT_FALSE(Resources().ResourceText(ThisModule(), 65408));
}

TEST(Win32Resources, TheViewIsOfTheModuleItself) {
  const LoadedResources resources;
  const auto first = Resources().ResourceText(resources.Module(), 65408);
  const auto second = Resources().ResourceText(resources.Module(), 65408);
  ASSERT_TRUE(first && second);
  EXPECT_EQ(first->data(), second->data());
}

TEST(Win32Resources, ThisModuleIsTheProgram) {
  EXPECT_EQ(ThisModule(), static_cast<void*>(GetModuleHandleW(nullptr)));
}

TEST(Win32VersionResource, StringsOfTheFirstTranslation) {
  const auto resource = Paths().OpenVersionResource(ResourceFile());
  ASSERT_TRUE(resource);
  EXPECT_EQ(resource->FirstTranslation(), 0x04E20405U);
  EXPECT_EQ(resource->String(u"040504E2", u"FileVersion"), u"1.2 – účetní");
  EXPECT_EQ(resource->String(u"040504e2", u"fileversion"), u"1.2 – účetní");
  EXPECT_EQ(resource->String(u"040904E4", u"FileVersion"), u"another");
  EXPECT_EQ(resource->String(u"040504E2", u"ProductVersion"), u"1");
}

TEST(Win32VersionResource, TextsEndAtTheirZero) {
  const auto resource = Paths().OpenVersionResource(ResourceFile());
  ASSERT_TRUE(resource);
  EXPECT_EQ(resource->String(u"040504E2", u"Comments"), u"before");
}

TEST(Win32VersionResource, NoneForWhatItLacks) {
  const auto resource = Paths().OpenVersionResource(ResourceFile());
  ASSERT_TRUE(resource);
  EXPECT_FALSE(resource->String(u"040504E2", u"CompanyName"));
  EXPECT_FALSE(resource->String(u"00000000", u"FileVersion"));
}

TEST(Win32VersionResource, OfASystemFile) {
  const std::u16string file = Folders().Folder(SystemFolder::System) + u"\\kernel32.dll";
  const auto resource = Paths().OpenVersionResource(file);
  ASSERT_TRUE(resource);
  const auto translation = resource->FirstTranslation();
  ASSERT_TRUE(translation);
  const std::u16string table = ToHex(*translation & 0xFFFF, 4) + ToHex(*translation >> 16, 4);
  EXPECT_EQ(resource->String(table, u"CompanyName"), u"Microsoft Corporation");
  EXPECT_NE(resource->String(table, u"FileVersion").value_or(u"").find(u'.'), std::u16string::npos);
}

}  // namespace
}  // namespace ravo::platform

#endif
