#include <ravo/common/stream_records.h>
#include <ravo/runtime/error.h>

#include <array>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

std::vector<std::byte> Bytes(std::initializer_list<int> values) {
  std::vector<std::byte> bytes;
  for (const int value : values) bytes.push_back(static_cast<std::byte>(value));
  return bytes;
}

std::vector<std::byte> Content(const MemoryStream& stream) {
  return {stream.Bytes().begin(), stream.Bytes().end()};
}

TEST(StringToStream, WritesLengthBytesAndTerminator) {
  MemoryStream stream;
  StringToStream(&stream,
                 "\xC8"
                 "ech");
  EXPECT_EQ(Content(stream), Bytes({4, 0, 0, 0, 0xC8, 'e', 'c', 'h', 0}));
}

TEST(StringToStream, EmptyTextTakesFiveBytes) {
  MemoryStream stream;
  StringToStream(&stream, "");
  EXPECT_EQ(Content(stream), Bytes({0, 0, 0, 0, 0}));
  stream.SetPosition(0);
  EXPECT_EQ(StringFromStream(&stream), "");
  EXPECT_EQ(stream.Position(), 5);
}

TEST(StringFromStream, ReadsBackInOrder) {
  MemoryStream stream;
  const std::string with_zero("a\0b", 3);
  StringToStream(&stream, "first");
  StringToStream(&stream, with_zero);
  stream.SetPosition(0);
  EXPECT_EQ(StringFromStream(&stream), "first");
  EXPECT_EQ(stream.Position(), 4 + 5 + 1);
  EXPECT_EQ(StringFromStream(&stream), with_zero);
  EXPECT_EQ(stream.Position(), stream.Size());
}

TEST(StringFromStream, AbsentStreamReadsAsNothing) {
  StringToStream(nullptr, "x");
  EXPECT_EQ(StringFromStream(nullptr), "");
}

TEST(StringFromStream, RaisesWithoutALength) {
  MemoryStream stream(Bytes({1, 0, 0}));
  EXPECT_THROW(static_cast<void>(StringFromStream(&stream)), StreamError);
}

TEST(StringFromStream, RaisesForANegativeLength) {
  MemoryStream stream(Bytes({0xFF, 0xFF, 0xFF, 0xFF, 'a', 0}));
  EXPECT_THROW(static_cast<void>(StringFromStream(&stream)), RangeError);
}

TEST(StringFromStream, RecordThatPromisesTooMuchIsFilledWithZeros) {
  MemoryStream stream(Bytes({6, 0, 0, 0, 'a', 'b'}));
  EXPECT_EQ(StringFromStream(&stream), std::string("ab\0\0\0\0", 6));
  EXPECT_EQ(stream.Position(), 7);
}

TEST(StringFromStream, APromiseOfFarMoreIsKept) {
  MemoryStream stream(Bytes({0, 0, 0, 4, 'a', 'b'}));
  const std::string text = StringFromStream(&stream);
  EXPECT_EQ(text.size(), std::size_t{64} << 20);
  EXPECT_EQ(text.substr(0, 3), std::string_view("ab\0", 3));
}

TEST(StringFromStream, EveryCutOfARecord) {
  const auto whole = Bytes({3, 0, 0, 0, 'a', 'b', 'c', 0});
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
    MemoryStream stream{std::span(whole).first(cut)};
    if (cut < 4) {
      EXPECT_THROW(static_cast<void>(StringFromStream(&stream)), StreamError);
      continue;
    }
    std::string expected = std::string("abc").substr(0, cut - 4);
    expected.resize(3);
    EXPECT_EQ(StringFromStream(&stream), expected);
  }
}

// A stream of zeros of any size that transfers at most `most` bytes at a time.
class ZeroStream final : public ByteStream {
 public:
  ZeroStream(std::int64_t size, std::size_t most) : size_(size), most_(most) {}
  std::size_t Read(std::span<std::byte> to) override {
    const auto count =
        std::min({to.size(), most_, static_cast<std::size_t>(std::max<std::int64_t>(0, size_ - position_))});
    std::fill_n(to.begin(), count, std::byte{0});
    position_ += static_cast<std::int64_t>(count);
    return count;
  }
  std::size_t Write(std::span<const std::byte> from) override {
    const auto count = std::min(from.size(), most_);
    position_ += static_cast<std::int64_t>(count);
    return count;
  }
  std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override { position_ = position; }
  std::int64_t Size() const override { return size_; }

 private:
  std::int64_t size_;
  std::size_t most_;
  std::int64_t position_ = 0;
};

TEST(StringFromStream, ReadsBeyondTwoGigabytes) {
  ZeroStream stream(std::int64_t{5} << 30, 3);
  stream.SetPosition(std::int64_t{4} << 30);
  EXPECT_EQ(StringFromStream(&stream), "");
  EXPECT_EQ(stream.Position(), (std::int64_t{4} << 30) + 5);
}

TEST(VariantToStream, WritesBytesAndNothingElse) {
  MemoryStream stream;
  VariantToStream(&stream, ByteArray{1, 2, 255});
  EXPECT_EQ(Content(stream), Bytes({1, 2, 255}));
}

TEST(VariantToStream, EmptyAndNullWriteNothing) {
  MemoryStream stream;
  VariantToStream(&stream, Variant());
  VariantToStream(&stream, NullValue{});
  VariantToStream(&stream, ByteArray{});
  VariantToStream(nullptr, ByteArray{1});
  EXPECT_EQ(stream.Size(), 0);
}

TEST(VariantToStream, RaisesForWhatIsNoByteArray) {
  MemoryStream stream;
  EXPECT_THROW(VariantToStream(&stream, u"text"), VariantError);
  EXPECT_THROW(VariantToStream(&stream, std::int32_t{5}), VariantError);
}

TEST(VariantToStream, RaisesWhenTheStreamTakesNothing) {
  ZeroStream stream(0, 0);
  EXPECT_THROW(VariantToStream(&stream, ByteArray{1}), StreamError);
}

TEST(VariantFromStream, ReadsTheWholeStreamFromItsStart) {
  MemoryStream stream(Bytes({1, 2, 3}));
  stream.SetPosition(3);
  EXPECT_EQ(VariantFromStream(&stream), Variant(ByteArray{1, 2, 3}));
  EXPECT_EQ(stream.Position(), 3);
}

TEST(VariantFromStream, EmptyStreamGivesAnArrayWithoutElements) {
  MemoryStream stream;
  EXPECT_EQ(VariantFromStream(&stream), Variant(ByteArray{}));
  EXPECT_TRUE(VariantFromStream(nullptr).IsNull());
}

TEST(VariantFromStream, RaisesForTwoGigabytes) {
  ZeroStream stream(std::int64_t{1} << 31, 1);
  EXPECT_THROW(static_cast<void>(VariantFromStream(&stream)), RangeError);
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
