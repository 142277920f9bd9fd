#include "draft_file.h"

#include <random>

namespace tool {

std::string NewDraftName() {
  static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz234567";
  std::random_device random;
  std::string name = ".ravo-";
  for (int i = 0; i < 16; ++i) name += kLetters[random() % 32];
  return name;
}

}  // namespace tool
