#include "checks.h"

#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <algorithm>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

Verdict CheckAccount(std::u16string_view text) { return {common::ValidUcet(text), {}, {}}; }
Verdict CheckSynthetic(std::u16string_view text) { return {common::ValidSU(text), {}, {}}; }
Verdict CheckAnalytic(std::u16string_view text) { return {common::ValidAU(text), {}, {}}; }

// An account or a reference of excessive length is invalid.
template <bool (*kRule)(std::u16string_view)>
Verdict CheckByRule(std::u16string_view text) {
  try {
    return {kRule(text), {}, {}};
  } catch (const ravo::Error&) {
    return {false, Text("too long"), Reason::TooLong};
  }
}

Verdict CheckEan(std::u16string_view text) {
  thread_local std::u16string old_check, new_check, full;
  if (!common::CalculateEAN(text, old_check, new_check, full)) return {};
  if (old_check == new_check) return {true, {}, {}};
  const std::string right = ravo::ToUtf8(full);
  if (old_check == u" ")
    return {false, Text("without check digit, complete: {0}", {right}), Reason::NoCheckDigit};
  return {false, Text("wrong check digit, right: {0}", {right}), Reason::WrongCheckDigit};
}

constexpr CheckKind kKinds[] = {
    {"ucet", ToTranslate("account of the chart of accounts, 3 to 6 digits"), CheckAccount},
    {"su", ToTranslate("synthetic account, 3 digits"), CheckSynthetic},
    {"au", ToTranslate("analytic account, up to 3 digits"), CheckAnalytic},
    {"banka", ToTranslate("bank account with its weights modulo 11"), CheckByRule<common::UcetMod11>},
    {"vs", ToTranslate("payment reference (variable symbol) with a Luhn digit"),
     CheckByRule<common::ValidVS>},
    {"ean", ToTranslate("article code EAN-8 or EAN-13"), CheckEan},
};

}  // namespace

std::span<const CheckKind> CheckKinds() { return kKinds; }

const CheckKind* FindCheckKind(std::string_view name) {
  const auto* found = std::ranges::find(kKinds, name, &CheckKind::name);
  return found == std::end(kKinds) ? nullptr : found;
}

}  // namespace tool
