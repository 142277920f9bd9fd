#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>
#include <ravo/platform/library_entry.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

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

TEST(ModuleList, OfTwoRecordsOfOneInstanceTheLaterOneIsFound) {
  RavoModule earlier = RecordOf(&places[0]);
  RavoModule later = RecordOf(&places[0]);
  RegisterModule(earlier);
  RegisterModule(later);
  EXPECT_EQ(FindModule(&places[0]), &later);
  UnregisterModule(later);
  EXPECT_EQ(FindModule(&places[0]), &earlier);
  RegisterModule(later);
  UnregisterModule(earlier);
  EXPECT_EQ(FindModule(&places[0]), &later);
  UnregisterModule(later);
  EXPECT_EQ(FindModule(&places[0]), nullptr);
}

TEST(ModuleList, LinksTheRecordsThatWereListedBefore) {
  RavoModule first = RecordOf(&places[0]);
  RavoModule second = RecordOf(&places[1]);
  RegisterModule(first);
  RegisterModule(second);
  EXPECT_EQ(second.Next, &first);
  EXPECT_EQ(first.Next, &frame::LibraryModule());
  UnregisterModule(first);
  EXPECT_EQ(second.Next, &frame::LibraryModule());
  EXPECT_EQ(first.Next, nullptr);
  UnregisterModule(second);
}

// More records than fit without allocation.
TEST(ModuleList, HoldsAnyNumberOfRecords) {
  static int many_places[300];
  std::vector<RavoModule> modules;
  for (int& place : many_places) modules.push_back(RecordOf(&place));
  for (RavoModule& module : modules) RegisterModule(module);
  for (RavoModule& module : modules) EXPECT_EQ(FindModule(module.Instance), &module);
  for (RavoModule& module : modules) UnregisterModule(module);
  for (RavoModule& module : modules) EXPECT_EQ(FindModule(module.Instance), nullptr);
}

// Adds and removes a record with a lifetime of just that.
void ComeAndGo(int& place) {
  for (int i = 0; i < 2000; ++i) {
    const auto module = std::make_unique<RavoModule>(RecordOf(&place));
    RegisterModule(*module);
    UnregisterModule(*module);
  }
}

TEST(ModuleList, IsReadWhileItChanges) {
  RavoModule steady = RecordOf(&places[0]);
  RegisterModule(steady);
  std::atomic<bool> is_over{false};
  std::atomic<int> misses{0};
  const auto read = [&] {
    while (!is_over) {
      misses += FindModule(&places[0]) != &steady;
      misses += FindModule(frame::LibraryModule().Instance) != &frame::LibraryModule();
      misses += ResourceString{65478, u"&Závazek"}.View() != u"&Závazek";
      static_cast<void>(FindModule(&places[1]));
    }
  };
  std::thread readers[] = {std::thread(read), std::thread(read)};
  std::thread writers[] = {std::thread(ComeAndGo, std::ref(places[1])),
                           std::thread(ComeAndGo, std::ref(places[2]))};
  for (std::thread& writer : writers) writer.join();
  is_over = true;
  for (std::thread& reader : readers) reader.join();
  UnregisterModule(steady);
  EXPECT_EQ(misses, 0);
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
