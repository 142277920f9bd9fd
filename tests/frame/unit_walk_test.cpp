#include <ravo/frame/unit_walk.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo::frame {
namespace {

std::string calls;

// Modules that log their start (upper case) and stop (lower case).
constexpr RavoPackageUnit kUnits[] = {
    {nullptr, nullptr},
    {[] { calls += 'A'; }, [] { calls += 'a'; }},
    {[] { calls += 'B'; }, nullptr},
    {nullptr, [] { calls += 'c'; }},
    {[] { calls += 'D'; }, [] { calls += 'd'; }},
    {nullptr, nullptr},
};

TEST(StartUnits, GoesFromTheFirstSlotToTheLast) {
  calls.clear();
  StartUnits(kUnits);
  EXPECT_EQ(calls, "ABD");
}

TEST(StopUnits, GoesFromTheLastSlotToTheFirst) {
  calls.clear();
  StopUnits(kUnits);
  EXPECT_EQ(calls, "dca");
}

}  // namespace
}  // namespace ravo::frame
