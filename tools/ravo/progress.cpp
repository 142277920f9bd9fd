#include "progress.h"

#include "columns.h"
#include "console.h"
#include "printable.h"

#include <algorithm>

namespace tool {
namespace {

constexpr auto kPatience = std::chrono::seconds(1);
constexpr auto kPause = std::chrono::milliseconds(100);
constexpr std::size_t kWidth = 30;

// A count if the total is unknown.
std::string Bar(std::int64_t done, std::int64_t whole) {
  if (whole <= 0) return std::to_string(done);
  const double share = std::min(1.0, static_cast<double>(done) / static_cast<double>(whole));
  const auto filled = static_cast<std::size_t>(share * static_cast<double>(kWidth));
  return "[" + std::string(filled, '#') + std::string(kWidth - filled, '.') + "] " +
         std::to_string(static_cast<int>(share * 100)) + " %";
}

}  // namespace

Progress::Progress(const std::string& what, std::int64_t whole)
    : what_(Printable(what)),
      whole_(whole),
      on_terminal_(IsTerminal(Channel::Err)),
      next_(Clock::now() + kPatience) {}

Progress::~Progress() {
  if (shown_)
    static_cast<void>(
        WriteWithCodes(Channel::Err, "\r" + std::string(Width(what_) + kWidth + 10, ' ') + "\r"));
}

void Progress::Show(std::int64_t done) {
  if (!on_terminal_ || Clock::now() < next_) return;
  next_ = Clock::now() + kPause;
  shown_ = true;
  static_cast<void>(WriteWithCodes(Channel::Err, "\r" + what_ + " " + Bar(done, whole_)));
}

}  // namespace tool
