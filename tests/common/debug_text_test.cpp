#include "support/fake_machine.h"
#include <ravo/common/text_helpers.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

TEST(DebugStr, GoesToTheDebuggerAsItIs) {
  const test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  DebugStr(u"Účet 221\r\n");
  DebugStr(u"");
  EXPECT_THAT(machine.debug_output, testing::ElementsAre(u"Účet 221\r\n", u""));
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
