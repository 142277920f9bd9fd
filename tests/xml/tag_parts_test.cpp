#include <ravo/xml/tag_parts.h>

#include <gmock/gmock.h>

namespace ravo::xml {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ReadTag, TakesNameAndLines) {
  EXPECT_EQ(ReadTag("<a b=\"1\" c='2'/>").name, "a");
  EXPECT_THAT(ReadTag("<a b=\"1\" c='2'/>").lines, ElementsAre("b=1", "c=2"));
  EXPECT_THAT(ReadTag("<a>").lines, IsEmpty());
  EXPECT_THAT(ReadTag("<a >").lines, IsEmpty());
}

// A tag that continues after its first ">" has attributes only before it.
TEST(ReadTag, EndsAtTheFirstGreaterThan) {
  EXPECT_THAT(ReadTag("<a b=\"1\"> c=\"2\">").lines, ElementsAre("b=1"));
  EXPECT_THAT(ReadTag("<a> b=\"1\">").lines, IsEmpty());
}

}  // namespace
}  // namespace ravo::xml
