// The accounting rules over any text: validators return a result or throw one of the library's errors, and
// the results are consistent.
#include <ravo/RavoInterfaceCommon.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using namespace ravo::RavoInterfaceCommon;

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckAccounts(std::u16string_view text) {
  Require(!ValidSU(text) || (ValidUcet(text) && IsNumbers(text)));
  Require(!ValidUcet(text) || IsNumbers(text));
  std::u16string synthetic;
  std::u16string analytic;
  UcetNaSUAU(text, synthetic, analytic);
  Require(!ValidUcet(text) || (ValidSU(synthetic) && ValidAU(analytic) && synthetic + analytic == text));
  static_cast<void>(ValidVS(text));
  try {
    static_cast<void>(UcetMod11(text));
  } catch (const ravo::FloatError&) {
    Require(text.size() > 62);
  }
}

void CheckEan(std::u16string_view text) {
  std::u16string old_check;
  std::u16string new_check;
  std::u16string full;
  if (!CalculateEAN(text, old_check, new_check, full)) {
    Require(old_check == u" " && new_check == u" " && full.empty());
    return;
  }
  // A completed code is valid.
  std::u16string again;
  Require(CalculateEAN(std::u16string(full), old_check, new_check, again));
  Require(old_check == new_check && again == full);
}

void CheckDescriptions(std::u16string_view text) {
  std::u16string street;
  std::u16string number;
  AdresaExpand(text, street, number);
  Require(number.empty() ? street == ravo::Trimmed(text) : street + u" " + number == ravo::Trimmed(text));
  static_cast<void>(DokladDescription(text, text, text));
  static_cast<void>(ParseZalohaFile(text, text));
}

void CheckRounding(std::int64_t raw, std::uint8_t type, std::int8_t decimals, char16_t kind) {
  try {
    static_cast<void>(RoundDPH({raw}, kind));
    const ravo::Currency once = RoundValue({raw}, static_cast<TRoundType>(type), decimals);
    if (type == 2 && decimals >= 0 && decimals <= 4) Require(RoundValue(once, rtMath, decimals) == once);
  } catch (const ravo::FloatError&) {
  }
  double value = 0;
  std::memcpy(&value, &raw, sizeof(value));
  try {
    static_cast<void>(RoundValueFloat(value, static_cast<TRoundType>(type), decimals));
  } catch (const ravo::FloatError&) {
  }
  try {
    Require(DateTimeToSQLString(value).size() == 21);
    static_cast<void>(ChangeMonth(value, type == 0 ? 1 : -1));
  } catch (const ravo::ConvertError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::u16string text = ravo::FromUtf8({reinterpret_cast<const char*>(data), size});
  CheckAccounts(text);
  CheckEan(text);
  CheckDescriptions(text);
  if (size >= 12) {
    std::int64_t raw = 0;
    std::memcpy(&raw, data, sizeof(raw));
    CheckRounding(raw, data[8], static_cast<std::int8_t>(data[9]),
                  static_cast<char16_t>(data[10] | data[11] << 8));
  }
  return 0;
}
