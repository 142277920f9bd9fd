#include "out_of_memory.h"

#include "hostapi/counted_object.h"
#include "support/fake_machine.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>
#include <ravo/RavoInterfaceInfo.h>
#include <ravo/RavoZip_TLB.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/string_list.h>

#include <string>
#include <vector>

// The main operations with memory that runs out at each of their allocations in turn: nothing leaks, only
// `std::bad_alloc` is thrown, and existing objects remain usable.
namespace ravo {
namespace {

using test::ExpectSurvivesScarceMemory;

// Longer than any text with inline storage.
const std::u16string kLong(200, u'ž');
const std::string kLongBytes(200, 'a');

TEST(OutOfMemory, IsSeenByTheTest) {
  std::vector<void*> lost;
  lost.reserve(10);
  const auto leaks = [&lost] { lost.push_back(::operator new(8)); };
  const test::Scarcity leaking = test::TryWithScarceMemory(leaks);
  EXPECT_EQ(leaking.leaked, 1);
  EXPECT_EQ(leaking.failures, 1);
  for (void* const block : lost) ::operator delete(block);
  std::vector<std::string> lines;
  const auto grows = [&lines] { lines.emplace_back(100, 'x'); };
  EXPECT_GT(test::TryWithScarceMemory(grows).failures, 0);
}

TEST(OutOfMemory, Texts) {
  ExpectSurvivesScarceMemory([] { static_cast<void>(FromUtf8(ToUtf8(kLong))); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(ReplaceAll(kLong, u"ž", u"zz")); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(Error(kLong)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(WideString(kLong)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(VariantToText(Variant(kLong), FormatSettings())); });
}

TEST(OutOfMemory, StringLists) {
  ExpectSurvivesScarceMemory([] {
    StringList list;
    list.SetText(u"name=value that is longer than a short text\r\nand another line of the same length");
    list.SetValue(u"name", kLong);
    list.SetValue(u"another", kLong);
    static_cast<void>(list.Text());
  });
}

// An existing list has its old lines or its new ones.
TEST(OutOfMemory, AStringListStaysWhole) {
  StringList list;
  list.Add(kLong);
  for (std::int64_t requests = 0; requests < 3; ++requests) {
    const std::size_t before = list.Count();
    bool raised = false;
    {
      const test::FailingMemory memory(requests);
      try {
        list.Add(std::u16string(kLong));
      } catch (const std::bad_alloc&) {
        raised = true;
      }
    }
    EXPECT_EQ(list.Count(), raised ? before : before + 1);
    for (const std::u16string& line : list) EXPECT_EQ(line, kLong);
  }
  EXPECT_EQ(list.Count(), 2U);
}

TEST(OutOfMemory, Catalogue) {
  ExpectSurvivesScarceMemory([] { static_cast<void>(RavoInterfaceCommon::GetTableDescription(100121)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(PlainCaption(kLong)); });
}

TEST(OutOfMemory, AccountingHelpers) {
  using namespace RavoInterfaceCommon;
  ExpectSurvivesScarceMemory([] { static_cast<void>(RemoveDiacritics(kLongBytes)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(DateTimeToSQLString(EncodeDate(2026, 11, 21) + 0.5)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(BytesToStr(123'456'789'012, true)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(ParseZalohaFile(u"%FIRMA%_%DATUM%_%CAS%", kLong)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(DokladDescription(kLong, kLong, kLong)); });
  ExpectSurvivesScarceMemory([] {
    std::u16string street;
    std::u16string number;
    AdresaExpand(u"Náměstí Osvoboditelů a dalších hrdinů 1234567890/12", street, number);
  });
  ExpectSurvivesScarceMemory([] { static_cast<void>(RemoveTableFromProperties(u"Firma", kLong)); });
}

TEST(OutOfMemory, Streams) {
  using namespace RavoInterfaceCommon;
  ExpectSurvivesScarceMemory([] {
    MemoryStream stream;
    StringToStream(&stream, kLongBytes);
    stream.SetPosition(0);
    static_cast<void>(StringFromStream(&stream));
    static_cast<void>(VariantFromStream(&stream));
  });
}

// A failed write leaves the contents of a stream unchanged.
TEST(OutOfMemory, AStreamStaysWhole) {
  MemoryStream stream;
  stream.WriteChecked(std::as_bytes(std::span(kLongBytes)));
  const std::int64_t size = stream.Size();
  {
    const test::FailingMemory memory(0);
    EXPECT_THROW(stream.WriteChecked(std::as_bytes(std::span(kLong))), std::bad_alloc);
  }
  EXPECT_EQ(stream.Size(), size);
  EXPECT_EQ(stream.Position(), size);
  stream.WriteChecked(std::as_bytes(std::span(kLongBytes)));
  EXPECT_EQ(stream.Size(), 2 * size);
}

TEST(OutOfMemory, SupportReport) {
  ExpectSurvivesScarceMemory([] {
    RavoInterfaceInfo::TRavoSystemInfo info;
    static_cast<void>(info.AsText(RavoInterfaceInfo::siVisual));
  });
}

// A report after a failed one is complete.
TEST(OutOfMemory, ACollectorStaysUsable) {
  test::FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  RavoInterfaceInfo::TRavoSystemInfo info;
  const std::u16string report = info.AsText(RavoInterfaceInfo::siVisual);
  for (const std::int64_t requests : {0, 1, 5, 20, 50}) {
    {
      const test::FailingMemory memory(requests);
      EXPECT_THROW(static_cast<void>(info.AsText(RavoInterfaceInfo::siVisual)), std::bad_alloc);
    }
    EXPECT_EQ(info.AsText(RavoInterfaceInfo::siVisual), report);
  }
}

TEST(OutOfMemory, Components) {
  ExpectSurvivesScarceMemory([] {
    try {
      test::Counts counts;
      const RegisteredClass zipper(RavoZip_TLB::CLASS_RavoZipper, [&counts] {
        return MakeComponent<test::CountedObject<RavoZip_TLB::IRavoZip>>(counts);
      });
      static_cast<void>(RavoZip_TLB::CoRavoZipper::Create());
    } catch (const ComponentError& error) {
      if (error.Code() != result_code::kOutOfMemory) throw;
    }
  });
}

TEST(OutOfMemory, WideStringBuffer) {
  ExpectSurvivesScarceMemory([] {
    DIUtils::TWideStrBuf buffer;
    for (int i = 0; i < 100; ++i) buffer.AddStr(kLong);
    static_cast<void>(buffer.GetAsStr());
  });
}

TEST(OutOfMemory, AWideStringBufferStaysWhole) {
  DIUtils::TWideStrBuf buffer;
  buffer.AddStr(kLong);
  std::u16string expected = kLong;
  expected.reserve(kLong.size() * 201);
  for (int i = 0; i < 200; ++i) {
    const test::FailingMemory memory(0);
    try {
      buffer.AddStr(kLong);
      expected += kLong;
    } catch (const std::bad_alloc&) {
      break;
    }
  }
  EXPECT_EQ(buffer.GetCount(), expected.size());
  EXPECT_EQ(buffer.GetAsStr().View(), expected);
}

// The block of a text of 128 MiB moves a few times per doubling, not once per 4096 units.
TEST(OutOfMemory, AWideStringBufferMovesSeldom) {
  constexpr std::int64_t granted = 1000;
  constexpr std::uint32_t units = std::uint32_t{1} << 26;
  const test::FailingMemory memory(granted);
  DIUtils::TWideStrBuf buffer;
  while (buffer.GetCount() < units) buffer.AddStr(kLong);
  EXPECT_LT(granted - memory.Left(), 4 * 26);
}

TEST(OutOfMemory, RandomTexts) {
  ExpectSurvivesScarceMemory([] { static_cast<void>(DIUtils::StrRandomW("seed", u"abc", 100)); });
}

}  // namespace
}  // namespace ravo
