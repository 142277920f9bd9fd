#include <ravo/xml/byte_scan.h>

namespace ravo::xml {
namespace {

// Removes each `first` `second` from left to right, without overlaps.
void RemovePairs(std::string& bytes, char first, char second) {
  std::size_t to = 0;
  for (std::size_t from = 0; from < bytes.size(); ++from) {
    if (bytes[from] == first && from + 1 < bytes.size() && bytes[from + 1] == second) {
      ++from;
    } else {
      bytes[to++] = bytes[from];
    }
  }
  bytes.resize(to);
}

void JoinBlanks(std::string& bytes) {
  std::size_t to = 0;
  for (std::size_t from = 0; from < bytes.size(); ++from) {
    if (bytes[from] != ' ' || to == 0 || bytes[to - 1] != ' ') bytes[to++] = bytes[from];
  }
  bytes.resize(to);
}

}  // namespace

bool IsNormalised(std::string_view bytes) noexcept {
  bool after_blank = false;
  for (const char ch : bytes) {
    // A single line feed stays; Normalise tells it from a pair.
    if (ch == '\n' || (ch == ' ' && after_blank)) return false;
    after_blank = ch == ' ';
  }
  return true;
}

void Normalise(std::string& bytes) {
  if (bytes.find('\n') != std::string::npos) {
    RemovePairs(bytes, '\r', '\n');
    RemovePairs(bytes, '\n', '\r');
  }
  JoinBlanks(bytes);
}

}  // namespace ravo::xml
