#include "out_of_memory.h"
#include <ravo/DIUnicode.h>
#include <ravo/DIUtils.h>
#include <ravo/RavoFileCommon.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/text.h>

#include <string>

// Memory that runs out in text, reader, writer and forms.
namespace ravo {
namespace {

using test::ExpectSurvivesScarceMemory;

const std::u16string kLongText(300, u'č');
const std::u16string kWords = u"Faktura č. 12 za žluťoučkého koně a za dva další koně ";
const std::string kManyBytes(300, '\xE8');

TEST(TextOutOfMemory, StringFunctions) {
  using namespace DIUtils;
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrReplaceIW(kLongText, u"Č", u"cc")); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrReplaceLoopW(kLongText, u"čč", u"č")); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrToUpperW(kLongText)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(ProperCaseW(kLongText)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(PadLeftW(kLongText, 400)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(WStrToAStr(kLongText)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(QuotedStrW(kLongText)); });
}

TEST(TextOutOfMemory, FurtherStringFunctions) {
  using namespace DIUtils;
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrDecodeUtf8(StrEncodeUtf8(kLongText))); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrDecodeUrlA(StrEncodeUrlA(kManyBytes))); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrExtractUriFragmentW(u"x#" + kLongText)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(ExtractWordA(kManyBytes, ", ")); });
  ExpectSurvivesScarceMemory(
      [] { static_cast<void>(ExtractWordStartsW(ReplaceAll(kLongText, u"č", u"č "))); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrTrimCharsW(kLongText, u" ")); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(StrRandomA("seed", "abc", 100)); });
}

// A text that is changed in place is the old one or the new one.
TEST(TextOutOfMemory, ATextStaysWhole) {
  std::u16string target = kLongText;
  target.shrink_to_fit();
  {
    const test::FailingMemory memory(0);
    EXPECT_THROW(DIUtils::ConCatStrW(target, kLongText), std::bad_alloc);
  }
  EXPECT_EQ(target, kLongText);
  DIUtils::ConCatStrW(target, kLongText);
  EXPECT_EQ(target, kLongText + kLongText);
}

TEST(TextOutOfMemory, Reader) {
  using namespace DIUnicode;
  for (const PDIUnicodeReadMethods methods : {&Read_Windows_1250, &Read_UTF_8, &Read_UTF_7}) {
    ExpectSurvivesScarceMemory([methods] {
      TDIUnicodeReader reader;
      reader.SetReadMethods(*methods);
      reader.SetSourceBufferAsStrA(kManyBytes);
      reader.ReadLine();
      static_cast<void>(reader.DataAsStrW());
      static_cast<void>(reader.DataAsStr8());
    });
  }
}

// A reader keeps its collected text and continues at its position.
TEST(TextOutOfMemory, AReaderStaysUsable) {
  DIUnicode::TDIUnicodeReader reader;
  reader.SetReadMethods(DIUnicode::Read_Windows_1250);
  reader.SetSourceBufferAsStrA(kManyBytes);
  for (std::int64_t requests = 0; requests < 5; ++requests) {
    const test::FailingMemory memory(requests);
    try {
      reader.ReadLine();
      break;
    } catch (const std::bad_alloc&) {
      static_cast<void>(memory.HasFailed());
    }
  }
  while (reader.AddCharReadChar()) {
  }
  EXPECT_FALSE(reader.CharOK());
  for (const char16_t c : reader.Data()) EXPECT_EQ(c, u'č');
}

TEST(TextOutOfMemory, Sources) {
  ExpectSurvivesScarceMemory([] {
    MemoryStream stream(std::as_bytes(std::span(kManyBytes)));
    DIUnicode::TDIUnicodeReader reader;
    reader.SetSourceStream(&stream, u"a name that is longer than a short text");
    reader.PushSource(true);
    reader.SetSourceBufferAsStrA("inner");
    while (reader.AddCharReadChar()) {
    }
  });
}

TEST(TextOutOfMemory, Writer) {
  using namespace DIUnicode;
  for (const PDIUnicodeWriteMethods methods : {&Write_Windows_1250, &Write_UTF_16_BE, &Write_UTF_7}) {
    ExpectSurvivesScarceMemory([methods] {
      TDIUnicodeWriter writer;
      writer.SetWriteMethods(*methods);
      writer.WriteStrW(kLongText);
      writer.WriteStrA(kManyBytes, 1250);
      writer.FlushDataBuffer();
      static_cast<void>(writer.DataToStrRaw());
    });
  }
}

// The bytes of a writer are whole characters of its input, and writing can continue.
TEST(TextOutOfMemory, AWriterStaysUsable) {
  DIUnicode::TDIUnicodeWriter writer;
  writer.SetWriteMethods(DIUnicode::Write_UTF_16_BE);
  writer.WriteStrW(u"č");
  {
    const test::FailingMemory memory(0);
    EXPECT_THROW(writer.WriteStrW(kLongText + kLongText), std::bad_alloc);
  }
  EXPECT_EQ(writer.DataSize() % 2, 0U);
  writer.WriteStrW(u"ž");
  const std::string bytes = writer.DataToStrRaw();
  EXPECT_EQ(bytes.substr(0, 2), "\x01\x0D");
  EXPECT_EQ(bytes.substr(bytes.size() - 2), "\x01\x7E");
}

TEST(TextOutOfMemory, EncodingsByName) {
  ExpectSurvivesScarceMemory([] {
    const DIUnicode::EncodingRow* const encoding = DIUnicode::FindEncoding("UTF-8");
    static_cast<void>(DIUnicode::EncodedCharacter(*encoding, u'€'));
  });
}

TEST(TextOutOfMemory, FormFields) {
  using namespace RavoFileCommon;
  for (const bool as_unicode : {false, true}) {
    ExpectSurvivesScarceMemory([as_unicode] {
      MemoryStream stream;
      FillPDFField(stream, u"a name that is longer than a short text", kLongText, as_unicode);
      FillPDFFieldAsInteger(stream, u"radne", 1);
    });
  }
}

}  // namespace
}  // namespace ravo
