// [include]
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <iostream>

using namespace ravo;
using namespace ravo::DIUtils;
// [/include]

int main() {
  // [days]
  const TJulianDate issued = YmdToJulianDate(2026, 11, 21);
  const TJulianDate due = issued + 14;
  std::cout << JulianDateToIsoDateA(due) << ", week " << ISOWeekNumber(due) << "\n";
  std::cout << (JulianDateIsWeekDay(issued) ? "a week day" : "a weekend") << "\n";
  std::cout << JulianDateToIsoDateA(LastDayOfMonth(issued)) << "\n";
  std::cout << JulianDateToIsoDateA(EasterSunday(2027)) << "\n";
  // [/days]
  // [hashes]
  std::cout << ToUtf8(ToHex(Crc32OfStrA("123456789"), 8)) << "\n";
  std::uint32_t piecewise = UpdateCrc32OfStrA(0xFFFFFFFF, "12345");
  piecewise = UpdateCrc32OfStrA(piecewise, "6789");
  std::cout << ToUtf8(ToHex(~piecewise, 8)) << "\n";
  std::cout << HashStrIW(u"Účetní deník", 0) - HashStrIW(u"ÚČETNÍ DENÍK", 0) << "\n";
  // [/hashes]
  // [random]
  TMT19937 random(20261121U);
  std::cout << random.genrand_int32() << " " << random.genrand_res53() << "\n";
  std::cout << StrRandomA("a seed", "ABCDEFGHJKLMNPQRSTUVWXYZ23456789", 8) << "\n";
  // [/random]
}
