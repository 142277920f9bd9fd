#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>
#include <ravo/platform/library_entry.h>

#include <gtest/gtest.h>
#include <support/fake_machine.h>

namespace ravo {
namespace {

int places[4];

RavoModule RecordOf(void* instance) { return {nullptr, instance, nullptr, nullptr, instance}; }

TEST(ModuleList, RecordsAreFoundByInstanceUntilTheyAreTakenOut) {
  RavoModule first = RecordOf(&places[0]);
  RavoModule second = RecordOf(&places[1]);
  RavoModule third = RecordOf(&places[2]);
  for (RavoModule* module : {&first, &second, &third}) RegisterModule(*module);
  EXPECT_EQ(FindModule(&places[0]), &first);
  EXPECT_EQ(FindModule(&places[1]), &second);
  EXPECT_EQ(FindModule(&places[3]), nullptr);
  UnregisterModule(second);
  EXPECT_EQ(FindModule(&places[1]), nullptr);
  EXPECT_EQ(FindModule(&places[0]), &first);
  EXPECT_EQ(FindModule(&places[2]), &third);
  UnregisterModule(second);
  UnregisterModule(first);
  UnregisterModule(third);
  EXPECT_EQ(FindModule(&places[0]), nullptr);
}

TEST(ModuleList, RegisteringTwiceListsOnce) {
  RavoModule module = RecordOf(&places[0]);
  RegisterModule(module);
  RegisterModule(module);
  UnregisterModule(module);
  EXPECT_EQ(FindModule(&places[0]), nullptr);
}

TEST(ModuleList, HoldsTheRecordOfTheLibrary) {
  RavoModule& module = frame::LibraryModule();
  EXPECT_EQ(module.Instance, platform::ThisModule());
  EXPECT_EQ(FindModule(module.Instance), &module);
}

// A machine with one text of the library itself and language modules to load.
struct LanguageMachine {
  test::FakeMachine machine;
  platform::ScopedMachine scoped{machine};
  void* const own = frame::LibraryModule().Instance;

  LanguageMachine() {
    machine.resource_texts[&places[0]] = {{65476, u"U&ndetermined"}};
    machine.resource_texts[&places[1]] = {{65476, u"Nicht &bestimmt"}, {65477, u""}};
    machine.resource_files[u"english"] = &places[0];
    machine.resource_files[u"german"] = &places[1];
  }
  ~LanguageMachine() { DetachResourceModule(); }
};

constexpr ResourceString kCaption{65476, u"N&eurčeno"};
constexpr ResourceString kOther{65478, u"&Závazek"};

TEST(ResourceString, ReadsTheBuiltInTextWithoutALanguageModule) {
  const LanguageMachine setting;
  EXPECT_EQ(kCaption.View(), u"N&eurčeno");
  EXPECT_EQ(kCaption.Text(), u"N&eurčeno");
}

TEST(ResourceString, ReadsTheStringTableOfTheLibraryBeforeTheBuiltInText) {
  LanguageMachine setting;
  setting.machine.resource_texts[setting.own] = {{65476, u"from the table"}};
  EXPECT_EQ(kCaption.View(), u"from the table");
  EXPECT_EQ(kOther.View(), u"&Závazek");
}

TEST(ResourceString, ReadsAnAttachedModuleFirstAndWhatItLacksAsBefore) {
  LanguageMachine setting;
  setting.machine.resource_texts[setting.own] = {{65478, u"from the table"}};
  ASSERT_TRUE(AttachResourceModule(u"english"));
  EXPECT_EQ(frame::LibraryModule().ResInstance, &places[0]);
  EXPECT_EQ(kCaption.View(), u"U&ndetermined");
  EXPECT_EQ(kOther.View(), u"from the table");
  DetachResourceModule();
  EXPECT_EQ(frame::LibraryModule().ResInstance, setting.own);
  EXPECT_EQ(kCaption.View(), u"N&eurčeno");
  EXPECT_EQ(setting.machine.unloaded, std::vector<platform::ModuleHandle>{&places[0]});
}

TEST(ResourceString, TheLookUpGoesThroughTheListedRecord) {
  const LanguageMachine setting;
  ASSERT_TRUE(AttachResourceModule(u"english"));
  UnregisterModule(frame::LibraryModule());
  EXPECT_EQ(kCaption.View(), u"N&eurčeno");
  RegisterModule(frame::LibraryModule());
  EXPECT_EQ(kCaption.View(), u"U&ndetermined");
}

TEST(AttachResourceModule, UnloadsTheFormerOne) {
  const LanguageMachine setting;
  ASSERT_TRUE(AttachResourceModule(u"english"));
  ASSERT_TRUE(AttachResourceModule(u"german"));
  EXPECT_EQ(kCaption.View(), u"Nicht &bestimmt");
  EXPECT_EQ(setting.machine.unloaded, std::vector<platform::ModuleHandle>{&places[0]});
}

TEST(AttachResourceModule, ChangesNothingWhereTheFileCannotBeLoaded) {
  const LanguageMachine setting;
  ASSERT_TRUE(AttachResourceModule(u"english"));
  EXPECT_FALSE(AttachResourceModule(u"missing"));
  EXPECT_EQ(kCaption.View(), u"U&ndetermined");
  EXPECT_TRUE(setting.machine.unloaded.empty());
}

TEST(DetachResourceModule, NeverUnloadsTheLibraryItself) {
  const LanguageMachine setting;
  DetachResourceModule();
  EXPECT_TRUE(setting.machine.unloaded.empty());
}

TEST(LibraryEntry, AttachFillsTheRecordAndDetachTakesItOut) {
  LanguageMachine setting;
  RavoModule& module = frame::LibraryModule();
  EXPECT_FALSE(frame::InsideLibrary());
  module.CodeInstance = module.DataInstance = &places[2];
  platform::LibraryAttached(&places[3]);
  EXPECT_TRUE(frame::InsideLibrary());
  EXPECT_EQ(FindModule(&places[3]), &module);
  EXPECT_EQ(module.ResInstance, &places[3]);
  EXPECT_EQ(module.CodeInstance, nullptr);
  EXPECT_EQ(module.DataInstance, nullptr);

  ASSERT_TRUE(AttachResourceModule(u"english"));
  platform::LibraryDetached();
  EXPECT_EQ(FindModule(&places[3]), nullptr);
  EXPECT_EQ(setting.machine.unloaded, std::vector<platform::ModuleHandle>{&places[0]});
  platform::LibraryAttached(setting.own);
}

TEST(PlainCaption, LosesEveryAcceleratorMark) {
  EXPECT_EQ(PlainCaption(u"N&eurčeno"), u"Neurčeno");
  EXPECT_EQ(PlainCaption(u"Dodací &list"), u"Dodací list");
  EXPECT_EQ(PlainCaption(u"&&a&"), u"a");
  EXPECT_EQ(PlainCaption(u"Hotově"), u"Hotově");
  EXPECT_EQ(PlainCaption(u""), u"");
}

}  // namespace
}  // namespace ravo
