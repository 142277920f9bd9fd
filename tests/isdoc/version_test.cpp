#include "samples.h"
#include <ravo/isdoc/version.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::isdoc::version_test {
namespace {

struct Row {
  std::string document;
  Version version;
  std::string_view text;
};

constexpr std::string_view kSix = "xmlns='http://isdoc.cz/namespace/2013'";
constexpr std::string_view kFormer = "xmlns='http://isdoc.cz/namespace/invoice'";

std::string Root(std::string_view name, std::string_view space, std::string_view more = "") {
  return "<" + std::string(name) + " " + std::string(space) + " " + std::string(more) + "/>";
}

TEST(Version, FollowsFromTheRoot) {
  const Row rows[] = {
      {Root("Invoice", kSix, "version='6.0.2'"), Version::Known, "6.0.2"},
      {Root("Invoice", kSix, "version='6.0'"), Version::Known, "6.0"},
      {Root("CommonDocument", kSix, "version='6.0.1'"), Version::Known, "6.0.1"},
      {Root("Invoice", kSix), Version::Known, "5"},
      {Root("Invoice", kSix, "version='7.0'"), Version::Other, "7.0"},
      {Root("Invoice", kSix, "version='60.0'"), Version::Other, "60.0"},
      {Root("Invoice", kSix, "version=''"), Version::Other, ""},
      {Root("Invoice", kFormer, "version='5.2.2'"), Version::Other, "5.2.2"},
      {Root("Invoice", kFormer), Version::Other, "5"},
      {Root("Anything", kFormer), Version::Other, "5"},
      {Root("Anything", kSix, "version='6.0.2'"), Version::None, "6.0.2"},
      {Root("Invoice", ""), Version::None, "5"},
      {Root("Invoice", "xmlns='http://isdoc.cz/namespace/2014'"), Version::None, "5"},
      {"<i:Invoice xmlns:i='http://isdoc.cz/namespace/2013' version='6.0.2'/>", Version::Known, "6.0.2"},
  };
  for (const Row& row : rows) {
    const Document document = test::Parsed(row.document);
    EXPECT_EQ(VersionOf(document), row.version) << row.document;
    EXPECT_EQ(VersionText(document), row.text) << row.document;
  }
}

TEST(Version, OfEverySampleIsKnown) {
  for (const std::string& name : test::SoundSamples()) {
    const std::string text = test::Sample(name);
    const Document document = test::Parsed(text);
    EXPECT_EQ(VersionOf(document), Version::Known) << name;
    EXPECT_EQ(VersionText(document), "6.0.2") << name;
  }
}

}  // namespace
}  // namespace ravo::isdoc::version_test
