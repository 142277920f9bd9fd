#include <ravo/runtime/checked.h>
#include <ravo/utils/random.h>
#include <ravo/utils/text_length.h>

#include <algorithm>
#include <bit>

namespace ravo::DIUtils {
namespace {

constexpr std::size_t kShift = 397;
constexpr std::uint32_t kDefaultSeed = 5489;
constexpr std::uint32_t kArraySeed = 19650218;

constexpr std::uint32_t Twisted(std::uint32_t word, std::uint32_t next, std::uint32_t distant) {
  const std::uint32_t y = (word & 0x80000000) | (next & 0x7FFFFFFF);
  return distant ^ (y >> 1) ^ ((0 - (y & 1)) & 0x9908B0DF);
}

constexpr std::uint32_t Tempered(std::uint32_t word) {
  word ^= word >> 11;
  word ^= (word << 7) & 0x9D2C5680;
  word ^= (word << 15) & 0xEFC60000;
  return word ^ (word >> 18);
}

std::uint32_t Scrambled(std::uint32_t word) { return word ^ (word >> 30); }

// Returns mantissa * 2^exponent as the bits of a normal double. The mantissa has 53 bits, or is 2^53 after a
// carry; its hidden bit adds one to the exponent.
double Real(std::uint64_t mantissa, int exponent) {
  constexpr int kBias = 1074;
  return std::bit_cast<double>((static_cast<std::uint64_t>(exponent + kBias) << 52) + mantissa);
}

// Returns value / 2^bits, exactly, for values of at most 53 bits.
double Fraction(std::uint64_t value, int bits) {
  if (value == 0) return 0;
  const int shift = std::countl_zero(value) - 11;
  return Real(value << shift, -bits - shift);
}

[[noreturn]] void ThrowNoKeys() { throw RangeError(u"Range check error"); }

template <class Text>
Text RandomText(std::string_view seed, std::basic_string_view<typename Text::value_type> alphabet,
                std::ptrdiff_t count) {
  Text text;
  const std::size_t length = utils::CheckedLength<typename Text::value_type>(count);
  if (length == 0) return text;
  TMT19937 generator(seed);
  if (alphabet.empty()) throw DivisionByZero(u"Division by zero");
  text.reserve(length);
  for (std::size_t i = 0; i < length; ++i) text += alphabet[generator.genrand_int32() % alphabet.size()];
  return text;
}

}  // namespace

void TMT19937::init_genrand(std::uint32_t seed) noexcept {
  state_[0] = seed;
  for (std::uint32_t i = 1; i < kWords; ++i) state_[i] = 1812433253 * Scrambled(state_[i - 1]) + i;
  index_ = kWords;
}

// Each round continues in the first word with the value of the last one.
template <class Key>
void TMT19937::SeedByKeys(std::span<const Key> keys, std::size_t steps) noexcept {
  init_genrand(kArraySeed);
  std::uint32_t i = 1;
  std::uint32_t j = 0;
  const auto advance = [this, &i] {
    if (++i < kWords) return;
    state_[0] = state_[kWords - 1];
    i = 1;
  };
  for (std::size_t k = 0; k < steps; ++k) {
    const auto key = static_cast<std::uint32_t>(keys[j]);
    state_[i] = (state_[i] ^ (Scrambled(state_[i - 1]) * 1664525)) + key + j;
    advance();
    if (++j == keys.size()) j = 0;
  }
  for (std::size_t k = 1; k < kWords; ++k) {
    state_[i] = (state_[i] ^ (Scrambled(state_[i - 1]) * 1566083941)) - i;
    advance();
  }
  state_[0] = 0x80000000;
}

void TMT19937::init_by_array(std::span<const std::uint32_t> keys) {
  if (keys.empty()) ThrowNoKeys();
  SeedByKeys(keys, std::max<std::size_t>(kWords, keys.size()));
}

void TMT19937::init_by_StrA(std::string_view seed) {
  if (seed.empty()) ThrowNoKeys();
  const std::span keys(reinterpret_cast<const unsigned char*>(seed.data()), seed.size());
  // Kept: a seed of 624 bytes or more gets one step more than it has bytes. Test:
  // InitByStrA.GetsOneStepMoreFrom624BytesOn
  SeedByKeys(keys, std::max<std::size_t>(kWords, seed.size() + 1));
}

// Three loops: none reads a word that it wrote in the last 227 steps, so the compiler can vectorize them.
void TMT19937::Regenerate() noexcept {
  if (index_ == kNeverSeeded) init_genrand(kDefaultSeed);
  std::uint32_t* const state = state_.data();
  for (std::size_t i = 0; i < kWords - kShift; ++i)
    state[i] = Twisted(state[i], state[i + 1], state[i + kShift]);
  for (std::size_t i = kWords - kShift; i < kWords - 1; ++i)
    state[i] = Twisted(state[i], state[i + 1], state[i + kShift - kWords]);
  state[kWords - 1] = Twisted(state[kWords - 1], state[0], state[kShift - 1]);
  for (std::size_t i = 0; i < kWords; ++i) tempered_[i] = Tempered(state[i]);
  index_ = 0;
}

std::int64_t TMT19937::genrand_int63() {
  // Kept: a low half with its highest bit set throws `RangeError`. Test:
  // GenrandInt63.RaisesWhereTheFirstDrawHasBit31
  const auto low = CheckedCast<std::int32_t>(genrand_int32());
  const std::int64_t high = genrand_int31();
  return high << 32 | low;
}

std::int64_t TMT19937::genrand_int64() {
  // Kept: either half with its highest bit set throws `RangeError`. Test:
  // GenrandInt64.RaisesWhereEitherDrawHasBit31
  const auto low = CheckedCast<std::int32_t>(genrand_int32());
  const std::int64_t high = CheckedCast<std::int32_t>(genrand_int32());
  return high << 32 | low;
}

// The quotient by 2^32 - 1 repeats the 32 bits of the draw forever, so the bits cut off are never a tie.
double TMT19937::genrand_real1() noexcept {
  const std::uint64_t draw = genrand_int32();
  if (draw == 0) return 0;
  const int zeros = std::countl_zero(draw) - 32;
  const std::uint64_t bits = ((draw << 32 | draw) << zeros) | (draw >> (32 - zeros));
  return Real((bits >> 11) + (bits >> 10 & 1), -53 - zeros);
}

double TMT19937::genrand_real2() noexcept { return Fraction(genrand_int32(), 32); }

double TMT19937::genrand_real3() noexcept { return Fraction(std::uint64_t{genrand_int32()} << 1 | 1, 33); }

double TMT19937::genrand_res53() noexcept {
  const std::uint64_t a = genrand_int32() >> 5;
  const std::uint32_t b = genrand_int32() >> 6;
  return Fraction(a << 26 | b, 53);
}

std::string StrRandomA(std::string_view seed, std::string_view alphabet, std::ptrdiff_t count) {
  return RandomText<std::string>(seed, alphabet, count);
}

std::u16string StrRandomW(std::string_view seed, std::u16string_view alphabet, std::ptrdiff_t count) {
  return RandomText<std::u16string>(seed, alphabet, count);
}

std::u16string StrRandom(std::string_view seed, std::u16string_view alphabet, std::ptrdiff_t count) {
  return StrRandomW(seed, alphabet, count);
}

}  // namespace ravo::DIUtils
