// The cost of the border of libravo: its functions beside the C++ that they call.
#include "ratio.h"
#include <ravo/catalogue/table_catalogue.h>
#include <ravo/codec/encoding.h>
#include <ravo/czech/kinds.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <ravo.h>

namespace {

constexpr std::array<std::string_view, 8> kNumbers = {"04625781", "00006947", "25596641", "27082440",
                                                      "45274649", "26168685", "00177041", "60193336"};
constexpr std::size_t kTextSize = std::size_t{1} << 20;

void CheckInC(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string_view number : kNumbers) {
      char value[RAVO_VALUE_SIZE];
      benchmark::DoNotOptimize(
          ravo_check(RAVO_KIND_ICO, number.data(), number.size(), value, sizeof value, nullptr, nullptr));
      benchmark::DoNotOptimize(value);
    }
  }
  state.counters["items"] = kNumbers.size();
}

void CheckInCpp(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string_view number : kNumbers)
      benchmark::DoNotOptimize(ravo::czech::Check(ravo::czech::Kind::Ico, number));
  }
  state.counters["items"] = kNumbers.size();
}

std::vector<std::int32_t> TableIds() {
  std::vector<std::int32_t> ids;
  for (const ravo::TableRow& row : ravo::TableRows()) ids.push_back(row.first);
  return ids;
}

void TableNameInC(benchmark::State& state) {
  const auto ids = TableIds();
  for (auto _ : state) {
    for (const std::int32_t id : ids) benchmark::DoNotOptimize(ravo_suite_table_name(id));
  }
  state.counters["items"] = static_cast<double>(ids.size());
}

void TableNameInCpp(benchmark::State& state) {
  const auto ids = TableIds();
  for (auto _ : state) {
    for (const std::int32_t id : ids)
      benchmark::DoNotOptimize(ravo::RavoInterfaceCommon::TableDescription(id));
  }
  state.counters["items"] = static_cast<double>(ids.size());
}

// A mebibyte of Czech in Windows-1250.
std::string Ledger() {
  std::string text;
  while (text.size() < kTextSize)
    text +=
        "\xDA\xE8"
        "etn\xED den\xEDk; 311100; P\xF8"
        "ijat\xE1 faktura\r\n";
  text.resize(kTextSize);
  return text;
}

void ConvertInC(benchmark::State& state) {
  const std::string text = Ledger();
  std::vector<char> result(2 * kTextSize);
  ravo_encoding from = 0;
  ravo_encoding to = 0;
  ravo_encoding_find("Windows_1250", RAVO_NUL_TERMINATED, &from, nullptr);
  ravo_encoding_find("UTF_8", RAVO_NUL_TERMINATED, &to, nullptr);
  for (auto _ : state) {
    benchmark::DoNotOptimize(ravo_convert(from, text.data(), text.size(), to, RAVO_CONVERT_STRICT,
                                          result.data(), result.size(), nullptr, nullptr, nullptr, nullptr));
  }
  state.counters["items"] = kTextSize;
}

// The engines over pieces that stay in the first-level cache, without a look at what cannot be converted.
void ConvertInCpp(benchmark::State& state) {
  constexpr std::size_t kPiece = std::size_t{1} << 13;
  const std::string text = Ledger();
  const ravo::codec::ByteSpan bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
  std::vector<std::uint8_t> result(3 * kTextSize);
  std::vector<char16_t> units(kPiece);
  const auto* from = ravo::codec::FindEncoding("Windows_1250");
  const auto* to = ravo::codec::FindEncoding("UTF_8");
  for (auto _ : state) {
    ravo::codec::State decoder;
    ravo::codec::State encoder;
    std::size_t made = 0;
    for (std::size_t at = 0; at < bytes.size(); at += kPiece) {
      const auto step =
          ravo::codec::Decode(*from, decoder, bytes.subspan(at, std::min(kPiece, bytes.size() - at)), units,
                              ravo::codec::Input::MoreFollows);
      made +=
          ravo::codec::Encode(*to, encoder, {units.data(), step.made}, std::span(result).subspan(made)).made;
    }
    benchmark::DoNotOptimize(made);
  }
  state.counters["items"] = kTextSize;
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::RegisterBenchmark("check of an ICO/ravo", CheckInC);
  benchmark::RegisterBenchmark("check of an ICO/C++", CheckInCpp);
  benchmark::RegisterBenchmark("table name/ravo", TableNameInC);
  benchmark::RegisterBenchmark("table name/C++", TableNameInCpp);
  benchmark::RegisterBenchmark("byte of 1 MiB converted/ravo", ConvertInC);
  benchmark::RegisterBenchmark("byte of 1 MiB converted/engines", ConvertInCpp);
  return ravo::bench::RunWithRatios(argc, argv);
}
