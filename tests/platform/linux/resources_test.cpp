#include <ravo/platform/library_entry.h>
#include <ravo/platform/linux/linux_machine.h>
#include <ravo/runtime/text.h>

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace ravo::platform::gnu_linux {
namespace {

class Resources : public ::testing::Test {
 protected:
  [[nodiscard]] ModuleHandle Load(std::string_view file) const {
    return machine_.LoadResources(FromUtf8(file));
  }

  const LinuxResources machine_{};
};

TEST_F(Resources, TextsOfAModule) {
  const ModuleHandle module = Load(RAVO_TEST_RESOURCES);
  ASSERT_TRUE(module);
  EXPECT_EQ(machine_.ResourceText(module, 65408), u"Ahoj");
  EXPECT_EQ(machine_.ResourceText(module, 65535), u"");
  EXPECT_EQ(machine_.ResourceText(module, 65409), std::nullopt);
  EXPECT_EQ(machine_.ResourceText(module, 0), std::nullopt);
  machine_.UnloadResources(module);
}

TEST_F(Resources, NotOfWhatAModuleLinksTo) {
  const ModuleHandle module = Load(RAVO_TEST_RESOURCES_USER);
  ASSERT_TRUE(module);
  ASSERT_TRUE(dlsym(module, "RavoResourceTexts")) << "the module under test does not link to the other one";
  EXPECT_EQ(machine_.ResourceText(module, 65408), std::nullopt);
  machine_.UnloadResources(module);
}

TEST_F(Resources, NoneOfOurOwnModuleNorOfNone) {
  ASSERT_TRUE(ThisModule());
  EXPECT_EQ(machine_.ResourceText(ThisModule(), 65408), std::nullopt);
  EXPECT_EQ(machine_.ResourceText(nullptr, 65408), std::nullopt);
  machine_.UnloadResources(nullptr);
  machine_.UnloadResources(ThisModule());
}

TEST_F(Resources, WhatCannotBeLoadedIsNull) {
  EXPECT_FALSE(Load("/nowhere-at-all.so"));
  EXPECT_FALSE(Load("/etc/passwd"));
  EXPECT_FALSE(Load(""));
  EXPECT_FALSE(Load(std::string_view(RAVO_TEST_RESOURCES "\0x", sizeof RAVO_TEST_RESOURCES + 1)));
}

}  // namespace
}  // namespace ravo::platform::gnu_linux
