#include "support/tried.h"

#include <map>
#include <utility>

#include <gtest/gtest.h>

namespace ravo::test {

void Tried(const std::string& what, std::int64_t count) {
  // A later property of the same name replaces an earlier one, so this adds up.
  static std::map<std::pair<const void*, std::string>, std::int64_t> sums;
  std::int64_t& sum = sums[{::testing::UnitTest::GetInstance()->current_test_info(), what}];
  sum += count;
  ::testing::Test::RecordProperty("tried_" + what, std::to_string(sum));
}

}  // namespace ravo::test
