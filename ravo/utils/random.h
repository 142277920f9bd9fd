#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Reproducible random numbers and texts: a seed gives the same results on every machine. Not suitable for
/// secrets.
namespace ravo::DIUtils {

/// The Mersenne Twister MT19937. Use an object from one thread at a time.
class RAVO_API TMT19937 {
 public:
  /// Constructs an unseeded generator; the first draw seeds it with 5489.
  TMT19937() noexcept : index_(kNeverSeeded) {}
  explicit TMT19937(std::uint32_t seed) noexcept { init_genrand(seed); }
  explicit TMT19937(std::span<const std::uint32_t> keys) { init_by_array(keys); }
  explicit TMT19937(std::string_view seed) { init_by_StrA(seed); }

  /// Seeds the generator with one number.
  void init_genrand(std::uint32_t seed) noexcept;

  /// Seeds the generator with an array of keys. Throws `RangeError` for an empty array; the state is then
  /// unchanged.
  void init_by_array(std::span<const std::uint32_t> keys);

  /// Seeds the generator with the bytes of a text as keys.
  ///
  /// Throws `RangeError` for an empty text; the state is then unchanged. A text of 624 bytes or more gives
  /// another state than an array of the same keys.
  void init_by_StrA(std::string_view seed);

  /// Returns the next 32 random bits.
  [[nodiscard]] std::uint32_t genrand_int32() noexcept {
    if (index_ >= kWords) Regenerate();
    return tempered_[index_++];
  }

  /// Returns a number from 0 to 2^31 - 1.
  [[nodiscard]] std::uint32_t genrand_int31() noexcept { return genrand_int32() >> 1; }

  /// Returns the first draw as low half and 31 bits of the second draw as high half.
  ///
  /// Throws `RangeError` if the first draw has bit 31 set, which is every other time on average; that draw is
  /// consumed.
  [[nodiscard]] std::int64_t genrand_int63();

  /// Returns the first draw as low half and the second draw as high half.
  ///
  /// Throws `RangeError` if either has bit 31 set; the draws up to that one are consumed.
  [[nodiscard]] std::int64_t genrand_int64();

  /// Returns a number in [0, 1] in steps of 1 / (2^32 - 1), each as the nearest double. This and the three
  /// below are composed from integers: the precision and rounding mode of the processor do not affect them.
  [[nodiscard]] double genrand_real1() noexcept;
  /// Returns a number in [0, 1) in steps of 2^-32.
  [[nodiscard]] double genrand_real2() noexcept;
  /// Returns a number in (0, 1) in steps of 2^-32.
  [[nodiscard]] double genrand_real3() noexcept;
  /// Returns a number in [0, 1) in steps of 2^-53, from two draws.
  [[nodiscard]] double genrand_res53() noexcept;

 private:
  static constexpr std::uint32_t kWords = 624;
  static constexpr std::uint32_t kNeverSeeded = kWords + 1;

  template <class Key>
  RAVO_LOCAL void SeedByKeys(std::span<const Key> keys, std::size_t steps) noexcept;
  void Regenerate() noexcept;

  std::array<std::uint32_t, kWords> state_;
  std::uint32_t index_;
  // The draws of the current state, computed all at once when the state is.
  std::array<std::uint32_t, kWords> tempered_;
};

/// Returns `count` characters of `alphabet`, drawn by a generator seeded with `seed`.
///
/// Throws `RangeError` for a count that is negative or exceeds the length of any text, and for an empty seed,
/// and `DivisionByZero` for an empty alphabet. Nothing is thrown for an empty seed or alphabet if `count` is
/// 0.
[[nodiscard]] RAVO_API std::string StrRandomA(std::string_view seed, std::string_view alphabet,
                                              std::ptrdiff_t count);
[[nodiscard]] RAVO_API std::u16string StrRandomW(std::string_view seed, std::u16string_view alphabet,
                                                 std::ptrdiff_t count);
[[nodiscard]] RAVO_API std::u16string StrRandom(std::string_view seed, std::u16string_view alphabet,
                                                std::ptrdiff_t count);

}  // namespace ravo::DIUtils
