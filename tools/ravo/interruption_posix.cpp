#include "interruption.h"

#include <array>
#include <atomic>
#include <csignal>
#include <string>

#include <unistd.h>

namespace tool {
namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

// The state that the signal handler accesses.
std::atomic<const char*> file_to_remove{nullptr};
static_assert(std::atomic<const char*>::is_always_lock_free);

// Ends the process by the default action of the signal.
extern "C" void EndByRemoving(int number) {
  if (const char* const name = file_to_remove.load()) unlink(name);
  std::signal(number, SIG_DFL);
  std::raise(number);
}

}  // namespace

struct DeleteOnInterruption::Watch {
  std::string name;
  const char* previous_name = nullptr;
  std::array<struct sigaction, kSignals.size()> previous_actions{};
};

DeleteOnInterruption::DeleteOnInterruption(const std::filesystem::path& file)
    : watch_(std::make_unique<Watch>()) {
  watch_->name = file.string();
  watch_->previous_name = file_to_remove.exchange(watch_->name.c_str());
  struct sigaction action {};
  action.sa_handler = EndByRemoving;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    struct sigaction& previous = watch_->previous_actions[i];
    sigaction(kSignals[i], nullptr, &previous);
    // The parent process may have set the signal to be ignored.
    if (previous.sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
  }
}

DeleteOnInterruption::~DeleteOnInterruption() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &watch_->previous_actions[i], nullptr);
  }
  file_to_remove.store(watch_->previous_name);
}

}  // namespace tool
