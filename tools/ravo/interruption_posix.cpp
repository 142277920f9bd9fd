#include "interruption.h"

#include <array>
#include <atomic>
#include <csignal>
#include <string>

#include <unistd.h>

namespace tool {

struct DeleteOnInterruption::Entry {
  int folder = -1;
  std::string name;
};

namespace {

struct File {
  std::atomic<const char*> name{nullptr};
  std::atomic<int> folder{-1};
};

// What the signal handler accesses. Commands write three files at most.
std::array<File, 16> files;
static_assert(std::atomic<const char*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

// Ends the process by the default action of the signal.
extern "C" void EndByDeleting(int number) {
  for (const File& file : files) {
    if (const char* const name = file.name.load()) unlinkat(file.folder.load(), name, 0);
  }
  std::signal(number, SIG_DFL);
  std::raise(number);
}

bool EndsTheProcess(int number) {
  for (const int other : {SIGKILL, SIGSTOP, SIGCHLD, SIGCONT, SIGURG, SIGWINCH, SIGTSTP, SIGTTIN, SIGTTOU}) {
    if (number == other) return false;
  }
  return true;
}

// Leaves a signal that the parent process ignores, or that has a handler of its own.
void HandleSignals() {
  struct sigaction action {};
  action.sa_handler = EndByDeleting;
  for (int number = 1; number <= SIGRTMAX; ++number) {
    struct sigaction previous {};
    if (!EndsTheProcess(number) || sigaction(number, nullptr, &previous) != 0) continue;
    if (previous.sa_handler == SIG_DFL) sigaction(number, &action, nullptr);
  }
}

}  // namespace

DeleteOnInterruption::DeleteOnInterruption(int folder, const std::filesystem::path& name)
    : entry_(std::make_unique<Entry>(Entry{folder, name.string()})) {
  static const bool handled = (HandleSignals(), true);
  static_cast<void>(handled);
  for (File& file : files) {
    if (file.name.load() != nullptr) continue;
    file.folder = entry_->folder;
    file.name = entry_->name.c_str();
    return;
  }
}

DeleteOnInterruption::~DeleteOnInterruption() {
  for (File& file : files) {
    if (file.name.load() == entry_->name.c_str()) file.name = nullptr;
  }
}

}  // namespace tool
