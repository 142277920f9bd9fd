#include "child_process.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace ravo::test {
namespace {

constexpr int kSteps = 60'000;
constexpr std::chrono::milliseconds kStep{1};

ChildEnd EndOf(int status) {
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? ChildEnd::Success : ChildEnd::Failure;
}

ChildEnd WaitFor(pid_t child) {
  int status = 0;
  for (int step = 0; step < kSteps; ++step) {
    if (waitpid(child, &status, WNOHANG) == child) return EndOf(status);
    std::this_thread::sleep_for(kStep);
  }
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return ChildEnd::Hang;
}

}  // namespace

ChildEnd RunChild(const std::string& program, const std::string& argument) {
  const pid_t child = fork();
  if (child < 0) return ChildEnd::Failure;
  if (child == 0) {
    execl(program.c_str(), program.c_str(), argument.c_str(), nullptr);
    _exit(127);
  }
  return WaitFor(child);
}

// The last action of a process is to flush its open files.
void LingerAtTheEnd() {
  constexpr auto write_slowly = [](void*, const char*, std::size_t size) {
    std::this_thread::sleep_for(kStep * 10);
    return static_cast<ssize_t>(size);
  };
  std::FILE* const file = fopencookie(nullptr, "w", {nullptr, write_slowly, nullptr, nullptr});
  if (file) std::fputs("held", file);
}

}  // namespace ravo::test
