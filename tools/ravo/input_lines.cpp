#include "input_lines.h"

#include "console.h"

#include <span>
#include <string_view>

namespace tool {
namespace {

using Take = std::function<void(const std::string&)>;

std::string_view NextPiece(std::span<char> room) {
  return {room.data(), ReadInput(std::as_writable_bytes(room))};
}

void TakeLine(std::string& line, const Take& take) {
  if (line.ends_with('\r')) line.pop_back();
  take(line);
  line.clear();
}

void ForEachInputLine(const Take& take) {
  std::vector<char> room(std::size_t{1} << 16);
  std::string line;
  for (std::string_view piece = NextPiece(room); !piece.empty(); piece = NextPiece(room)) {
    for (std::size_t end = piece.find('\n'); end != std::string_view::npos; end = piece.find('\n')) {
      line += piece.substr(0, end);
      piece.remove_prefix(end + 1);
      TakeLine(line, take);
    }
    line += piece;
  }
  if (!line.empty()) TakeLine(line, take);
}

}  // namespace

void ForEachValue(const std::vector<std::string>& words, const Take& take) {
  for (const std::string& word : words) word == kInputName ? ForEachInputLine(take) : take(word);
}

}  // namespace tool
