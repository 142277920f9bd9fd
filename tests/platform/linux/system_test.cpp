#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/posix/user.h>
#include <ravo/runtime/text.h>

#include <gtest/gtest.h>
#include <sys/utsname.h>

namespace ravo::platform::gnu_linux {
namespace {

TEST(LinuxMachine, SaysWhatTheKernelSays) {
  utsname names{};
  ASSERT_EQ(uname(&names), 0);
  const LinuxSystem system;
  const SystemVersion version = system.Version();
  EXPECT_TRUE(std::string_view(names.release).starts_with(ToUtf8(ToText(std::uint64_t{version.major}))));
  EXPECT_EQ(system.ComputerName(), FromUtf8(names.nodename));
  EXPECT_FALSE(system.IsServerR2());
  const auto user = posix::CurrentUser();
  EXPECT_EQ(system.UserName(), user ? FromUtf8(user->name) : u"");
  LinuxDiagnostics().DebugOutput(u"no debugger reads this");
}

}  // namespace
}  // namespace ravo::platform::gnu_linux
