#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Reproducible random numbers and texts: the same seed gives the same results on every machine. Nothing here
/// is fit for secrets.
namespace ravo::DIUtils {

/// The Mersenne Twister MT19937. One thread uses one object at a time.
class RAVO_API TMT19937 {
 public:
  /// Unseeded: the first draw seeds with 5489.
  TMT19937() noexcept : index_(kNeverSeeded) {}
  explicit TMT19937(std::uint32_t seed) noexcept { init_genrand(seed); }
  explicit TMT19937(std::span<const std::uint32_t> keys) { init_by_array(keys); }
  explicit TMT19937(std::string_view seed) { init_by_StrA(seed); }

  /// Seeds by one number.
  void init_genrand(std::uint32_t seed) noexcept;

  /// `RangeError` for no keys at all; the state is then as it was.
  void init_by_array(std::span<const std::uint32_t> keys);

  /// The bytes as keys. A text of 624 bytes or more seeds otherwise than an array of them would. `RangeError`
  /// for an empty one; the state is then as it was.
  void init_by_StrA(std::string_view seed);

  /// The next 32 random bits.
  [[nodiscard]] std::uint32_t genrand_int32() noexcept {
    if (index_ >= kWords) Regenerate();
    return tempered_[index_++];
  }

  /// 0 to 2^31 - 1.
  [[nodiscard]] std::uint32_t genrand_int31() noexcept { return genrand_int32() >> 1; }

  /// The first draw as low half, 31 bits of the second as high half. `RangeError`, with the first draw gone,
  /// where that has bit 31 set: every other time on average.
  [[nodiscard]] std::int64_t genrand_int63();

  /// The first draw as low half, the second as high half. `RangeError` where either has bit 31 set; the draws
  /// up to that one are gone.
  [[nodiscard]] std::int64_t genrand_int64();

  /// [0, 1] in steps of 1 / (2^32 - 1), each as the nearest double. The real numbers are put together from
  /// integers: the precision and rounding mode of the caller's processor have no say.
  [[nodiscard]] double genrand_real1() noexcept;
  /// [0, 1) in steps of 2^-32.
  [[nodiscard]] double genrand_real2() noexcept;
  /// (0, 1) in steps of 2^-32.
  [[nodiscard]] double genrand_real3() noexcept;
  /// [0, 1) in steps of 2^-53, from two draws.
  [[nodiscard]] double genrand_res53() noexcept;

 private:
  static constexpr std::uint32_t kWords = 624;
  static constexpr std::uint32_t kNeverSeeded = kWords + 1;

  template <class Key>
  RAVO_LOCAL void SeedByKeys(std::span<const Key> keys, std::size_t steps) noexcept;
  void Regenerate() noexcept;

  std::array<std::uint32_t, kWords> state_;
  std::uint32_t index_;
  // The draws that the state stands for, made all at once when it is.
  std::array<std::uint32_t, kWords> tempered_;
};

/// `count` characters of the alphabet, drawn by a generator that `seed` seeds. `RangeError` for a negative
/// count, for one that no text can have and for an empty seed, `DivisionByZero` for an empty alphabet;
/// neither where `count` is 0.
[[nodiscard]] RAVO_API std::string StrRandomA(std::string_view seed, std::string_view alphabet,
                                              std::ptrdiff_t count);
[[nodiscard]] RAVO_API std::u16string StrRandomW(std::string_view seed, std::u16string_view alphabet,
                                                 std::ptrdiff_t count);
[[nodiscard]] RAVO_API std::u16string StrRandom(std::string_view seed, std::u16string_view alphabet,
                                                std::ptrdiff_t count);

}  // namespace ravo::DIUtils
