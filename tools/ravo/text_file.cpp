#include "text_file.h"

namespace tool {

std::filesystem::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

}  // namespace tool
