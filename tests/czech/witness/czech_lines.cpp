// Reads lines of a kind, a tab and a value; writes for each the text of the code, a tab and the canonical
// form. The bank of an account is looked up in the built-in list, on the list's day: "bank.unknown" is its
// answer.
#include <ravo/czech/czech.h>

#include <iostream>
#include <string>
#include <string_view>

namespace {

using namespace ravo::czech;

Code BankCodeOf(Kind kind, std::string_view canonical) {
  if (kind != Kind::Account) return Code::Correct;
  const BankList list = BuiltInBanks();
  return FindBank(list, ParseAccount(canonical).value.bank, list.date).code;
}

void Answer(Kind kind, std::string_view value) {
  const auto checked = Check(kind, value);
  Code code = checked.code;
  if (checked) code = BankCodeOf(kind, checked.value.View());
  std::cout << CodeText(code) << '\t' << checked.value.View() << '\n';
}

}  // namespace

int main() {
  std::ios::sync_with_stdio(false);
  std::string line;
  while (std::getline(std::cin, line)) {
    const std::size_t tab = line.find('\t');
    const auto kind = KindOf(std::string_view(line).substr(0, tab));
    if (tab == std::string::npos || !kind) return 2;
    Answer(*kind, std::string_view(line).substr(tab + 1));
  }
  return 0;
}
