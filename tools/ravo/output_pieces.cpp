#include "output_pieces.h"

#include "console.h"

namespace tool {
namespace {

constexpr std::size_t kAtOnce = std::size_t{1} << 16;

}  // namespace

// Output that cannot be written is kept: the program reports the failure when it writes the rest.
void AddOutput(Outcome& outcome, std::string_view text) {
  const bool is_enough = outcome.out.size() + text.size() >= kAtOnce;
  const auto write = [&outcome](std::string_view bytes) {
    return outcome.coloured ? WriteWithCodes(Channel::Out, bytes) : Write(Channel::Out, bytes);
  };
  if (is_enough && write(outcome.out)) outcome.out.clear();
  if (!is_enough || !outcome.out.empty() || !write(text)) outcome.out += text;
}

void ComplainOfOne(Outcome& outcome, std::string_view message, Answer answer) {
  Complain(outcome, message, answer);
  if (outcome.err.size() >= kAtOnce && Write(Channel::Err, outcome.err)) outcome.err.clear();
}

}  // namespace tool
