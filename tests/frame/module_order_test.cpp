#include <ravo/frame/module_order.h>

#include <vector>

#include <gtest/gtest.h>

namespace ravo::frame {
namespace {

// Returns the names in starting order, or an empty list if there is no valid order.
std::vector<std::string_view> Ordered(std::span<const ModuleRow> rows) {
  std::vector<std::size_t> order(rows.size());
  if (!OrderModules(rows, order)) return {};
  std::vector<std::string_view> names;
  for (const std::size_t row : order) names.emplace_back(rows[row].name);
  return names;
}

using Names = std::vector<std::string_view>;

TEST(ModuleOrder, UsedModulesComeFirstAndRowsKeepTheirOrderOtherwise) {
  constexpr ModuleRow rows[] = {
      {"Main", 0, "A B C"}, {"C", 0, ""}, {"A", 0, "B"}, {"B", 0, ""}, {"D", 0, ""}};
  EXPECT_EQ(Ordered(rows), (Names{"C", "B", "A", "Main", "D"}));
}

TEST(ModuleOrder, CirclesAreFound) {
  constexpr ModuleRow pair[] = {{"A", 0, "B"}, {"B", 0, "A"}};
  constexpr ModuleRow itself[] = {{"A", 0, "A"}};
  constexpr ModuleRow long_way[] = {{"X", 0, ""}, {"A", 0, "X C"}, {"B", 0, "A"}, {"C", 0, "B"}};
  for (const std::span<const ModuleRow> rows : {std::span<const ModuleRow>(pair), {itself}, {long_way}}) {
    EXPECT_EQ(Ordered(rows), Names{});
  }
}

TEST(ModuleOrder, UnknownNamesAreFound) {
  constexpr ModuleRow rows[] = {{"A", 0, ""}, {"B", 0, "a"}};
  EXPECT_EQ(Ordered(rows), Names{});
}

TEST(ModuleOrder, TooManyModulesAreRefused) {
  const std::vector<ModuleRow> rows(kMostModules + 1, {"A", 0, ""});
  EXPECT_EQ(Ordered(rows), Names{});
}

}  // namespace
}  // namespace ravo::frame
