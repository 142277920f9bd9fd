#pragma once

#include <ravo/czech/czech.h>

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// Values of each kind that are correct in form, the same in every run.
namespace ravo::bench {

using namespace ravo::czech;

inline constexpr std::size_t kValues = 4096;

inline std::string Digits(std::mt19937_64& random, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += static_cast<char>('0' + random() % 10);
  return text;
}

/// Values of a kind that are correct in form: those of the generator that pass.
template <class Make>
std::vector<std::string> Correct(Kind kind, Make make) {
  std::mt19937_64 random(1);
  std::vector<std::string> values;
  while (values.size() < kValues) {
    std::string value = make(random);
    if (Check(kind, std::string_view(value))) values.push_back(std::move(value));
  }
  return values;
}

inline std::string MakeBirthNumber(std::mt19937_64& random) {
  FixedText<12> text;
  text.AppendNumber(random() % 100, 2);
  text.AppendNumber(1 + random() % 12 + (random() % 2 == 0 ? 50 : 0), 2);
  text.AppendNumber(1 + random() % 28, 2);
  text.Append(Digits(random, 4));
  return std::string(text.View());
}

inline std::string MakeAccount(std::mt19937_64& random) {
  return Digits(random, 2) + "-" + Digits(random, 10) + "/0" + Digits(random, 1) + "00";
}

inline std::string MakeIban(std::mt19937_64& random) {
  for (;;) {
    const auto account = ParseAccount(std::string_view(MakeAccount(random)));
    if (account) return std::string(IbanOf(account.value).text.View());
  }
}

inline std::vector<std::string> ValuesOf(Kind kind) {
  const auto digits = [](int count) {
    return [count](std::mt19937_64& random) { return Digits(random, count); };
  };
  switch (kind) {
    case Kind::Ico:
      return Correct(kind, digits(8));
    case Kind::Dic:
      return Correct(kind, [](auto& random) { return "CZ" + Digits(random, 8); });
    case Kind::VatNumber:
      return Correct(kind, [](auto& random) { return "DE" + Digits(random, 9); });
    case Kind::BirthNumber:
      return Correct(kind, MakeBirthNumber);
    case Kind::Iban:
      return Correct(kind, MakeIban);
    case Kind::Bic:
      return Correct(kind, [](auto& random) { return "KOMBCZPP" + Digits(random, 3); });
    case Kind::Account:
      return Correct(kind, MakeAccount);
    case Kind::PostCode:
      return Correct(kind, digits(5));
    case Kind::Ean:
    case Kind::Isbn:
      return Correct(kind, [](auto& random) { return "978" + Digits(random, 10); });
    default:
      return Correct(kind, digits(10));
  }
}

}  // namespace ravo::bench
