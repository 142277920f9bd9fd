#include "commands.h"

#include "program_help.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::vector<std::string> DescribedNames(std::string_view only) {
  CLI::App program;
  tool::Outcome outcome;
  tool::Describe(program, outcome, only);
  return tool::CommandNames(program);
}

std::string HelpOf(const std::string& command, std::string_view only) {
  CLI::App program;
  tool::Outcome outcome;
  tool::Describe(program, outcome, only);
  const CLI::App* const app = tool::CommandNamed(program, command);
  return app == nullptr ? "" : tool::HelpJson(*app, command).dump();
}

TEST(Commands, OneIsDescribedWithoutTheOthers) {
  const std::vector<std::string> all = DescribedNames("");
  ASSERT_GT(all.size(), 20U);
  for (const std::string& name : all) {
    EXPECT_EQ(DescribedNames(name), std::vector<std::string>{name});
    EXPECT_EQ(HelpOf(name, name), HelpOf(name, "")) << name;
  }
}

TEST(Commands, AllAreDescribedForAWordThatIsNone) {
  for (const char* const word : {"chek", "--help", "CHECK", "check ", "show"})
    EXPECT_EQ(DescribedNames(word), DescribedNames("")) << word;
}

}  // namespace
