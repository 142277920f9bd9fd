// The hashes for hash tables, beside xxHash with 32 bits. They are older than xxHash and cannot change their
// values.
#include "ratio.h"
#include <ravo/DIUtils.h>

#include <random>

#include <xxhash.h>

namespace {

std::u16string Text(std::size_t units) {
  std::mt19937 random(7);
  std::u16string text(units, u'\0');
  for (char16_t& unit : text) unit = static_cast<char16_t>(u' ' + random() % 0x160);
  return text;
}

// Each hash is the initial value of the next one.
template <class Hash>
void Register(const std::string& name, std::size_t units, Hash hash) {
  benchmark::RegisterBenchmark(name.c_str(), [text = Text(units), hash](benchmark::State& state) {
    std::uint32_t value = 0;
    for (auto _ : state) value = hash(text, value);
    benchmark::DoNotOptimize(value);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * 2 * text.size()));
  });
}

std::uint32_t XxHash(const std::u16string& text, std::uint32_t initial) {
  return XXH32(text.data(), 2 * text.size(), initial);
}

void RegisterSize(const std::string& size, std::size_t units) {
  using namespace ravo::DIUtils;
  const auto text = [](const std::u16string& t, std::uint32_t i) { return HashStrW(t, i); };
  const auto folded = [](const std::u16string& t, std::uint32_t i) { return HashStrIW(t, i); };
  const auto upper = [](const std::u16string& t, std::uint32_t i) {
    return HashBufIA(t.data(), 2 * t.size(), i);
  };
  Register("hash_" + size + "/ravo", units, text);
  Register("hash_" + size + "/xxHash32", units, XxHash);
  Register("hash_upper_" + size + "/ravo", units, upper);
  Register("hash_upper_" + size + "/xxHash32", units, XxHash);
  Register("hash_folded_" + size + "/ravo", units, folded);
  Register("hash_folded_" + size + "/xxHash32", units, XxHash);
}

}  // namespace

int main(int argc, char** argv) {
  RegisterSize("32B", 16);
  RegisterSize("4KiB", 2048);
  return ravo::bench::RunWithRatios(argc, argv);
}
