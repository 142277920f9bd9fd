// Readers without a source, and with read methods of the caller.
#include <ravo/DIUnicode.h>
#include <ravo/runtime/byte_stream.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

TEST(SourceBufferAsStr, OfNoBufferIsEmpty) {
  TDIUnicodeReader reader;
  EXPECT_EQ(reader.SourceBufferAsStrW(), u"");
  EXPECT_EQ(reader.SourceBufferAsStrA(), "");
  reader.SetSourceBufferAsStrA("a");
  EXPECT_EQ(reader.SourceBufferAsStrW(), u"") << "half a character";
}

// These methods have no run function, so characters are decoded one by one.
TEST(WriteStream, TakesReadMethodsOfTheCaller) {
  const TDIUnicodeReadMethods shifted{nullptr,
                                      [](TDIUnicodeReader& reader, char16_t& ch) {
                                        std::uint8_t byte = 0;
                                        if (!reader.NextByte(byte)) return false;
                                        ch = static_cast<char16_t>(byte + 1);
                                        return true;
                                      },
                                      nullptr};
  const std::string source(10'000, 'a');
  MemoryStream stream(std::as_bytes(std::span(source)));
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(Write_UTF_8);
  writer.WriteStream(&stream, shifted);
  EXPECT_EQ(writer.DataToStrRaw(), std::string(10'000, 'b'));
}

}  // namespace
}  // namespace ravo::DIUnicode
