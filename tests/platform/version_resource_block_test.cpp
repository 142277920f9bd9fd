#include "support/guarded_buffer.h"
#include "support/pe_builder.h"
#include <ravo/platform/version_resource_block.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

using test::Bytes;
using test::VersionNode;
using test::VersionString;

constexpr std::uint32_t kCzech = 0x04E20405;

Bytes Sample() {
  return test::VersionBlock(u"040504E2",
                            {{u"CompanyName", u"Účetní dům"},
                             {u"FileVersion", u"7.0.4.453"},
                             {u"InternalName", u"1"},
                             {u"LegalCopyright", u""}},
                            {kCzech, 0x04B00409});
}

// A resource of one string table around a row.
Bytes BlockOfRow(const Bytes& row) {
  return VersionNode(u"VS_VERSION_INFO", 0, 0, {},
                     {VersionNode(u"StringFileInfo", 1, 0, {}, {VersionNode(u"040504E2", 1, 0, {}, {row})})});
}

TEST(VersionResourceBlock, GivesStringsOfTheTable) {
  const VersionResourceBlock block(Sample());
  EXPECT_EQ(block.String(u"040504E2", u"CompanyName"), u"Účetní dům");
  EXPECT_EQ(block.String(u"040504E2", u"FileVersion"), u"7.0.4.453");
  EXPECT_EQ(block.String(u"040504E2", u"InternalName"), u"1");
  EXPECT_EQ(block.String(u"040504E2", u"LegalCopyright"), u"");
}

TEST(VersionResourceBlock, NamesCompareWithoutCase) {
  const Bytes block = Sample();
  EXPECT_EQ(VersionStringOf(block, u"040504e2", u"FILEversion"), u"7.0.4.453");
  EXPECT_EQ(VersionStringOf(block, u"040504E2", u"FileVersio"), std::nullopt);
  EXPECT_EQ(VersionStringOf(block, u"040904E2", u"FileVersion"), std::nullopt);
  EXPECT_EQ(VersionStringOf(block, u"", u""), std::nullopt);
}

TEST(VersionResourceBlock, TheFirstTranslationCounts) {
  EXPECT_EQ(VersionResourceBlock(Sample()).FirstTranslation(), kCzech);
  EXPECT_EQ(FirstTranslationOf(test::VersionBlock(u"040504E2", {}, {})), std::nullopt);
}

TEST(VersionResourceBlock, TranslationsMayStandBeforeTheStrings) {
  Bytes list(4);
  test::Put32(list, 0, kCzech);
  const Bytes block =
      VersionNode(u"VS_VERSION_INFO", 0, 0, {},
                  {VersionNode(u"VarFileInfo", 1, 0, {}, {VersionNode(u"Translation", 0, 4, list, {})}),
                   VersionNode(u"StringFileInfo", 1, 0, {},
                               {VersionNode(u"040504E2", 1, 0, {}, {VersionString(u"Key", u"text")})})});
  EXPECT_EQ(FirstTranslationOf(block), kCzech);
  EXPECT_EQ(VersionStringOf(block, u"040504E2", u"Key"), u"text");
}

TEST(VersionResourceBlock, ATranslationCutShortIsNone) {
  const Bytes list(3);
  const auto block_of = [&](std::uint16_t stated) {
    return VersionNode(
        u"VS_VERSION_INFO", 0, 0, {},
        {VersionNode(u"VarFileInfo", 1, 0, {}, {VersionNode(u"Translation", 0, stated, list, {})})});
  };
  EXPECT_EQ(FirstTranslationOf(block_of(3)), std::nullopt);
  EXPECT_EQ(FirstTranslationOf(block_of(4)), std::nullopt);
}

TEST(VersionResourceBlock, TextEndsAtZeroAtItsLengthOrAtTheEndOfItsEntry) {
  Bytes value(8);
  test::Put16(value, 0, u'a');
  test::Put16(value, 2, u'b');
  test::Put16(value, 6, u'c');
  struct Row {
    std::uint16_t length;
    std::u16string_view text;
  };
  constexpr Row rows[] = {{0, u""}, {1, u"a"}, {2, u"ab"}, {3, u"ab"}, {4, u"ab"}, {0xFFFF, u"ab"}};
  for (const Row& row : rows) {
    const Bytes block = BlockOfRow(VersionNode(u"Key", 1, row.length, value, {}));
    EXPECT_EQ(VersionStringOf(block, u"040504E2", u"Key"), row.text);
    const Bytes unterminated = BlockOfRow(VersionNode(u"Key", 1, row.length, std::span(value).first(4), {}));
    EXPECT_EQ(VersionStringOf(unterminated, u"040504E2", u"Key"), row.text);
  }
}

TEST(VersionResourceBlock, TheLengthOfATextCountsUnitsWhateverItsKind) {
  Bytes value(6);
  test::Put16(value, 0, u'a');
  test::Put16(value, 2, u'b');
  const Bytes block = BlockOfRow(VersionNode(u"Key", 0, 3, value, {}));
  EXPECT_EQ(VersionStringOf(block, u"040504E2", u"Key"), u"ab");
}

TEST(VersionResourceBlock, AnotherRootIsNoVersionResource) {
  Bytes block = Sample();
  test::Put16(block, 6, u'X');
  EXPECT_EQ(FirstTranslationOf(block), std::nullopt);
  EXPECT_EQ(VersionStringOf(block, u"040504E2", u"FileVersion"), std::nullopt);
}

TEST(VersionResourceBlock, EveryTruncationGivesNone) {
  const Bytes block = Sample();
  for (std::size_t size = 0; size < block.size(); ++size) {
    const test::GuardedBuffer cut{std::span(block).first(size)};
    EXPECT_EQ(FirstTranslationOf(cut.Bytes()), std::nullopt) << size;
    EXPECT_EQ(VersionStringOf(cut.Bytes(), u"040504E2", u"FileVersion"), std::nullopt) << size;
  }
}

TEST(VersionResourceBlock, EveryDamagedByteGivesAnAnswer) {
  const Bytes block = Sample();
  const test::GuardedBuffer guarded(block);
  std::size_t intact = 0;
  for (std::byte& byte : guarded.Bytes()) {
    const std::byte before = byte;
    for (unsigned value = 0; value < 256; ++value) {
      byte = static_cast<std::byte>(value);
      const auto text = VersionStringOf(guarded.Bytes(), u"040504E2", u"LegalCopyright");
      EXPECT_LE(text.value_or(u"").size() * 2, block.size());
      if (FirstTranslationOf(guarded.Bytes()) == kCzech) ++intact;
    }
    byte = before;
  }
  // Values of strings are not on the way to the translation; its own bytes are.
  EXPECT_GT(intact, block.size());
  EXPECT_LT(intact, block.size() * 256 - 4 * 255);
}

}  // namespace
}  // namespace ravo::platform
