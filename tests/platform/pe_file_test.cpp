#include "support/effort.h"
#include "support/fake_stream.h"
#include "support/guarded_buffer.h"
#include "support/pe_builder.h"
#include <ravo/platform/pe_file.h>
#include <ravo/platform/version_resource_block.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

using test::Bytes;
using test::PeImage;
using test::PeKind;

constexpr PeKind kKinds[] = {PeKind::Pe32, PeKind::Pe32Plus};
constexpr std::uint32_t kSubdirectory = 0x80000000;

const Bytes& SampleBlock() {
  static const Bytes block = test::VersionBlock(u"040504E2", {{u"FileVersion", u"7.0"}}, {0x04E20405});
  return block;
}

std::optional<Bytes> ResourceOf(std::span<const std::byte> image) {
  test::SpanStream stream(image);
  return ReadVersionResource(stream);
}

TEST(ReadVersionResource, FindsItInBothKindsOfImages) {
  for (const PeKind kind : kKinds) {
    const auto resource = ResourceOf(test::BuildPe(kind, SampleBlock()).bytes);
    ASSERT_TRUE(resource);
    EXPECT_EQ(*resource, SampleBlock());
    EXPECT_EQ(VersionStringOf(*resource, u"040504E2", u"FileVersion"), u"7.0");
  }
}

TEST(ReadVersionResource, TakesAStreamThatGivesOneByteAtATime) {
  MemoryStream memory(test::BuildPe(PeKind::Pe32, SampleBlock()).bytes);
  test::StingyStream stream(memory, 1);
  EXPECT_EQ(ReadVersionResource(stream), SampleBlock());
}

TEST(ReadVersionResource, ReadsOnlyWhatLiesOnTheWay) {
  PeImage image = test::BuildPe(PeKind::Pe32, SampleBlock());
  image.bytes.resize(image.bytes.size() + 1'000'000);
  test::SpanStream stream(image.bytes);
  EXPECT_TRUE(ReadVersionResource(stream));
  EXPECT_LT(stream.BytesRead(), 1024 + SampleBlock().size());
}

TEST(ReadVersionResource, NoneInAFileThatIsNoImage) {
  EXPECT_FALSE(ResourceOf({}));
  EXPECT_FALSE(ResourceOf(Bytes(4096)));
  EXPECT_FALSE(ResourceOf(std::as_bytes(std::span("MZ is how this text begins"))));
}

// Writes one number into a sound image and expects that it no longer has a version resource.
void ExpectNoneWith32(std::size_t PeImage::*part, std::size_t offset, std::uint32_t value) {
  for (const PeKind kind : kKinds) {
    PeImage image = test::BuildPe(kind, SampleBlock());
    test::Put32(image.bytes, image.*part + offset, value);
    EXPECT_FALSE(ResourceOf(image.bytes)) << offset << " " << value;
  }
}

void ExpectNoneWith16(std::size_t PeImage::*part, std::size_t offset, std::uint16_t value) {
  for (const PeKind kind : kKinds) {
    PeImage image = test::BuildPe(kind, SampleBlock());
    test::Put16(image.bytes, image.*part + offset, value);
    EXPECT_FALSE(ResourceOf(image.bytes)) << offset << " " << value;
  }
}

TEST(ReadVersionResource, NoneWithoutTheResourceDataDirectory) {
  ExpectNoneWith32(&PeImage::resource_data_directory, 0, 0);
  for (const PeKind kind : kKinds) {
    PeImage image = test::BuildPe(kind, SampleBlock());
    test::Put32(image.bytes, image.resource_data_directory - 20, 2);  // the number of data directories
    EXPECT_FALSE(ResourceOf(image.bytes));
  }
}

TEST(ReadVersionResource, NoneWithDamagedHeaders) {
  ExpectNoneWith16(&PeImage::pe_header, 0, 0x454E);
  ExpectNoneWith16(&PeImage::pe_header, 6, 0);        // no sections
  ExpectNoneWith16(&PeImage::pe_header, 6, 97);       // more sections than an image can have
  ExpectNoneWith16(&PeImage::pe_header, 20, 0);       // no optional header
  ExpectNoneWith16(&PeImage::pe_header, 20, 0xFFFF);  // one larger than the file
  ExpectNoneWith16(&PeImage::optional_header, 0, 0x107);
  ExpectNoneWith32(&PeImage::resource_data_directory, 0, 0xFFFFFFFF);
  ExpectNoneWith32(&PeImage::section_table, 40 + 16, 8);           // a section smaller than a directory
  ExpectNoneWith32(&PeImage::section_table, 40 + 20, 0xFFFFFFFF);  // a section past the end of the file
}

TEST(ReadVersionResource, NoneWithDamagedDirectories) {
  ExpectNoneWith32(&PeImage::type_directory, 16 + 16, 17);     // no version type
  ExpectNoneWith32(&PeImage::type_directory, 12, 0xFFFFFFFF);  // entries that do not fit
  ExpectNoneWith32(&PeImage::type_directory, 16 + 20, 40);     // no directory below the type
  ExpectNoneWith32(&PeImage::type_directory, 16 + 20,
                   kSubdirectory | 0);                                    // the root below the type: too deep
  ExpectNoneWith32(&PeImage::name_directory, 12, 0);                      // no name
  ExpectNoneWith32(&PeImage::name_directory, 20, 88);                     // no directory below the name
  ExpectNoneWith32(&PeImage::name_directory, 20, 0xFFFFFFFF);             // one outside the section
  ExpectNoneWith32(&PeImage::language_directory, 12, 0);                  // no language
  ExpectNoneWith32(&PeImage::language_directory, 20, kSubdirectory | 0);  // a fourth level
  ExpectNoneWith32(&PeImage::language_directory, 20, 0x7FFFFFFF);         // an entry outside the section
}

TEST(ReadVersionResource, NoneWithDamagedDataEntry) {
  ExpectNoneWith32(&PeImage::data_entry, 0, 0);
  ExpectNoneWith32(&PeImage::data_entry, 0, 0xFFFFFFFF);
  ExpectNoneWith32(&PeImage::data_entry, 4, 0);
  ExpectNoneWith32(&PeImage::data_entry, 4, static_cast<std::uint32_t>(SampleBlock().size()) + 1);
  ExpectNoneWith32(&PeImage::data_entry, 4, 0xFFFFFFFF);
}

TEST(ReadVersionResource, TakesAMebibyteAndRefusesMore) {
  constexpr std::size_t most = 1 << 20;
  EXPECT_TRUE(ResourceOf(test::BuildPe(PeKind::Pe32, Bytes(most)).bytes));
  EXPECT_FALSE(ResourceOf(test::BuildPe(PeKind::Pe32, Bytes(most + 1)).bytes));
}

TEST(ReadVersionResource, TheFirstNameAndTheFirstLanguageCount) {
  PeImage image = test::BuildPe(PeKind::Pe32, SampleBlock());
  // The second entry is read from the bytes that follow. It points nowhere, and the reader must not follow
  // it.
  test::Put16(image.bytes, image.name_directory + 14, 2);
  test::Put16(image.bytes, image.language_directory + 14, 2);
  EXPECT_EQ(ResourceOf(image.bytes), SampleBlock());
}

TEST(ReadVersionResource, EveryTruncationGivesNone) {
  for (const PeKind kind : kKinds) {
    const PeImage image = test::BuildPe(kind, SampleBlock());
    for (std::size_t size = 0; size < image.bytes.size(); ++size) {
      const test::GuardedBuffer cut{std::span(image.bytes).first(size)};
      EXPECT_FALSE(ResourceOf(cut.Bytes())) << size;
    }
  }
}

TEST(ReadVersionResource, EveryDamagedByteGivesAnAnswer) {
  constexpr unsigned kStep = test::StepUnderSanitizers(17);
  for (const PeKind kind : kKinds) {
    const PeImage image = test::BuildPe(kind, SampleBlock());
    const test::GuardedBuffer guarded(image.bytes);
    std::size_t found = 0;
    for (std::byte& byte : guarded.Bytes()) {
      const std::byte before = byte;
      for (unsigned value = 0; value < 256; value += kStep) {
        byte = static_cast<std::byte>(value);
        const auto resource = ResourceOf(guarded.Bytes());
        if (!resource) continue;
        ++found;
        EXPECT_LE(resource->size(), image.bytes.size());
        static_cast<void>(FirstTranslationOf(*resource));
        static_cast<void>(VersionStringOf(*resource, u"040504E2", u"FileVersion"));
      }
      byte = before;
    }
    // Most bytes are not on the way; at least the signatures are.
    EXPECT_GT(found, image.bytes.size());
    EXPECT_LT(found, image.bytes.size() * (255 / kStep + 1) - 6 * (255 / kStep));
  }
}

}  // namespace
}  // namespace ravo::platform
