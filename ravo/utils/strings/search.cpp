#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/search.h>

namespace ravo::DIUtils {

using strings::Buffer;
using strings::Exact;
using strings::Find;
using strings::Folded;
using strings::Place;
using strings::Position;
using ViewA = std::string_view;
using ViewW = std::u16string_view;

std::size_t StrPosA(ViewA search, ViewA text, std::size_t start) noexcept {
  return Position(Find<Exact>(search, text, Place(start)));
}
std::size_t StrPosW(ViewW search, ViewW text, std::size_t start) noexcept {
  return Position(Find<Exact>(search, text, Place(start)));
}
std::size_t StrPos(ViewW search, ViewW text, std::size_t start) noexcept {
  return StrPosW(search, text, start);
}
std::size_t StrPosIA(ViewA search, ViewA text, std::size_t start) noexcept {
  return Position(Find<Folded>(search, text, Place(start)));
}
std::size_t StrPosIW(ViewW search, ViewW text, std::size_t start) noexcept {
  return Position(Find<Folded>(search, text, Place(start)));
}
std::size_t StrPosI(ViewW search, ViewW text, std::size_t start) noexcept {
  return StrPosIW(search, text, start);
}

std::size_t StrPosBackA(ViewA search, ViewA text, std::size_t start) noexcept {
  return Position(strings::FindBack<Exact>(search, text, Place(start)));
}
std::size_t StrPosBackIA(ViewA search, ViewA text, std::size_t start) noexcept {
  return Position(strings::FindBack<Folded>(search, text, Place(start)));
}

std::size_t BufPosA(ViewA search, const char* buffer, std::size_t length, std::size_t start) noexcept {
  return StrPosA(search, Buffer(buffer, length), start);
}
std::size_t BufPosIA(ViewA search, const char* buffer, std::size_t length, std::size_t start) noexcept {
  return StrPosIA(search, Buffer(buffer, length), start);
}
std::size_t BufPosW(ViewW search, const char16_t* buffer, std::size_t length, std::size_t start) noexcept {
  return StrPosW(search, Buffer(buffer, length), start);
}
std::size_t BufPosIW(ViewW search, const char16_t* buffer, std::size_t length, std::size_t start) noexcept {
  return StrPosIW(search, Buffer(buffer, length), start);
}

bool StrContainsA(ViewA search, ViewA text) noexcept { return StrPosA(search, text) != 0; }
bool StrContainsW(ViewW search, ViewW text) noexcept { return StrPosW(search, text) != 0; }
bool StrContains(ViewW search, ViewW text) noexcept { return StrContainsW(search, text); }
bool StrContainsIA(ViewA search, ViewA text) noexcept { return StrPosIA(search, text) != 0; }
bool StrContainsIW(ViewW search, ViewW text) noexcept { return StrPosIW(search, text) != 0; }
bool StrContainsI(ViewW search, ViewW text) noexcept { return StrContainsIW(search, text); }

}  // namespace ravo::DIUtils
