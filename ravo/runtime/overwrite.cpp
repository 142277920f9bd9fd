#include <ravo/runtime/overwrite.h>

// Compiled as C++23: the standard library has this function only then.
namespace ravo {

void OverwriteBy(std::string& text, std::size_t size, WriteChars<char> write, void* context) {
  text.resize_and_overwrite(size, [=](char* to, std::size_t room) { return write(context, to, room); });
}

void OverwriteBy(std::u16string& text, std::size_t size, WriteChars<char16_t> write, void* context) {
  text.resize_and_overwrite(size, [=](char16_t* to, std::size_t room) { return write(context, to, room); });
}

}  // namespace ravo
