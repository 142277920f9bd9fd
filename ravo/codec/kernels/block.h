#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// Vectors of sixteen bytes or eight UTF-16 units, the one type for searches, comparisons and conversions in
/// every room. A comparison gives lanes of ones for true. Without SSE2 the same operations work lane by lane.
/// Wider blocks need a check of the processor (kernel_set.h).
namespace ravo::codec {

/// The lanes of a block for which a comparison is true, in order.
template <class Unit>
class Hits {
 public:
  /// `sizeof(Unit)` bits for each lane, the first lane in the lowest ones.
  constexpr explicit Hits(unsigned bits) noexcept : bits_(bits) {}

  [[nodiscard]] constexpr unsigned Bits() const noexcept { return bits_; }
  [[nodiscard]] constexpr bool None() const noexcept { return bits_ == 0; }
  [[nodiscard]] constexpr bool All() const noexcept { return bits_ == 0xFFFF; }
  /// Returns the first lane; there must be one.
  [[nodiscard]] constexpr std::size_t First() const noexcept {
    return static_cast<std::size_t>(std::countr_zero(bits_)) / sizeof(Unit);
  }
  [[nodiscard]] constexpr Hits WithoutFirst() const noexcept {
    constexpr unsigned kLane = (1U << sizeof(Unit)) - 1;
    return Hits(bits_ & ~(kLane << std::countr_zero(bits_)));
  }
  [[nodiscard]] constexpr Hits operator~() const noexcept { return Hits(~bits_ & 0xFFFF); }
  [[nodiscard]] constexpr Hits operator|(Hits other) const noexcept { return Hits(bits_ | other.bits_); }
  [[nodiscard]] constexpr Hits operator&(Hits other) const noexcept { return Hits(bits_ & other.bits_); }

 private:
  unsigned bits_;
};

inline constexpr std::size_t kBlockBytes = 16;

#if defined(__SSE2__)

template <class Unit>
class Block {
  static constexpr bool kIsBytes = sizeof(Unit) == 1;

 public:
  static constexpr std::size_t kUnits = kBlockBytes / sizeof(Unit);

  Block() noexcept : lanes_(_mm_setzero_si128()) {}
  explicit Block(__m128i lanes) noexcept : lanes_(lanes) {}
  /// `unit` in every lane.
  explicit Block(Unit unit) noexcept
      : lanes_(kIsBytes ? _mm_set1_epi8(static_cast<char>(unit)) : _mm_set1_epi16(static_cast<short>(unit))) {
  }
  template <class Other>
  explicit Block(Block<Other> other) noexcept : lanes_(other.Lanes()) {}

  [[nodiscard]] static Block Load(const void* from) noexcept {
    return Block(_mm_loadu_si128(static_cast<const __m128i*>(from)));
  }
  /// Returns a block of the bytes of two integers, each in little-endian order.
  [[nodiscard]] static Block OfHalves(std::uint64_t low, std::uint64_t high) noexcept {
    return Block(_mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low)));
  }
  void Store(void* to) const noexcept { _mm_storeu_si128(static_cast<__m128i*>(to), lanes_); }
  [[nodiscard]] __m128i Lanes() const noexcept { return lanes_; }

  [[nodiscard]] Block operator|(Block other) const noexcept {
    return Block(_mm_or_si128(lanes_, other.lanes_));
  }
  [[nodiscard]] Block operator&(Block other) const noexcept {
    return Block(_mm_and_si128(lanes_, other.lanes_));
  }
  /// Returns the bits that `other` lacks.
  [[nodiscard]] Block Without(Block other) const noexcept {
    return Block(_mm_andnot_si128(other.lanes_, lanes_));
  }
  [[nodiscard]] Block operator-(Block other) const noexcept {
    return Block(kIsBytes ? _mm_sub_epi8(lanes_, other.lanes_) : _mm_sub_epi16(lanes_, other.lanes_));
  }
  /// Shift the bits within each UTF-16 unit.
  [[nodiscard]] Block Left(int count) const noexcept { return Block(_mm_slli_epi16(lanes_, count)); }
  [[nodiscard]] Block Right(int count) const noexcept { return Block(_mm_srli_epi16(lanes_, count)); }

  [[nodiscard]] Block EqualTo(Block other) const noexcept {
    return Block(kIsBytes ? _mm_cmpeq_epi8(lanes_, other.lanes_) : _mm_cmpeq_epi16(lanes_, other.lanes_));
  }
  [[nodiscard]] Block EqualTo(Unit unit) const noexcept { return EqualTo(Block(unit)); }
  /// Returns ones in the lanes that are less, as signed numbers.
  [[nodiscard]] Block SignedLess(Block other) const noexcept {
    return Block(kIsBytes ? _mm_cmplt_epi8(lanes_, other.lanes_) : _mm_cmplt_epi16(lanes_, other.lanes_));
  }
  [[nodiscard]] Block Within(Unit first, Unit last) const noexcept {
    constexpr unsigned kLeast = kIsBytes ? 0x80 : 0x8000;
    const unsigned from = static_cast<std::make_unsigned_t<Unit>>(first);
    const unsigned to = static_cast<std::make_unsigned_t<Unit>>(last);
    const Block moved = *this - Block(static_cast<Unit>(from - kLeast));
    return moved.SignedLess(Block(static_cast<Unit>(to - from + 1 + kLeast)));
  }

  /// Returns the top bit of each byte.
  [[nodiscard]] unsigned Bits() const noexcept { return static_cast<unsigned>(_mm_movemask_epi8(lanes_)); }
  [[nodiscard]] bool AllAscii() const noexcept { return Bits() == 0; }
  /// Returns the lanes of ones as hits; for plain bytes, those from 0x80 on.
  [[nodiscard]] Hits<Unit> AsHits() const noexcept {
    return Hits<Unit>(static_cast<unsigned>(_mm_movemask_epi8(lanes_)));
  }

 private:
  __m128i lanes_;
};

/// Return the minimum and the maximum of each lane, as signed numbers.
[[nodiscard]] inline Block<char16_t> SignedLesser(Block<char16_t> left, Block<char16_t> right) noexcept {
  return Block<char16_t>(_mm_min_epi16(left.Lanes(), right.Lanes()));
}
[[nodiscard]] inline Block<char16_t> SignedGreater(Block<char16_t> left, Block<char16_t> right) noexcept {
  return Block<char16_t>(_mm_max_epi16(left.Lanes(), right.Lanes()));
}

/// Return sixteen bytes widened to units: the first eight and the last eight.
template <class Byte>
[[nodiscard]] Block<char16_t> WidenedLow(Block<Byte> bytes) noexcept {
  return Block<char16_t>(_mm_unpacklo_epi8(bytes.Lanes(), _mm_setzero_si128()));
}
template <class Byte>
[[nodiscard]] Block<char16_t> WidenedHigh(Block<Byte> bytes) noexcept {
  return Block<char16_t>(_mm_unpackhi_epi8(bytes.Lanes(), _mm_setzero_si128()));
}

/// Returns sixteen units below 0x100 narrowed to bytes.
[[nodiscard]] inline Block<std::uint8_t> Narrowed(Block<char16_t> low, Block<char16_t> high) noexcept {
  return Block<std::uint8_t>(_mm_packus_epi16(low.Lanes(), high.Lanes()));
}
/// Returns sixteen lanes of ones or zeros narrowed from units to bytes.
[[nodiscard]] inline Block<std::uint8_t> NarrowedLanes(Block<char16_t> low, Block<char16_t> high) noexcept {
  return Block<std::uint8_t>(_mm_packs_epi16(low.Lanes(), high.Lanes()));
}

#else

template <class Unit>
class Block {
 public:
  static constexpr std::size_t kUnits = kBlockBytes / sizeof(Unit);
  using Array = std::array<Unit, kUnits>;

  Block() noexcept = default;
  explicit Block(const Array& lanes) noexcept : lanes_(lanes) {}
  explicit Block(Unit unit) noexcept { lanes_.fill(unit); }
  template <class Other>
  explicit Block(Block<Other> other) noexcept : Block(Load(other.Lanes().data())) {}

  [[nodiscard]] static Block Load(const void* from) noexcept {
    Block block;
    std::memcpy(block.lanes_.data(), from, kBlockBytes);
    return block;
  }
  [[nodiscard]] static Block OfHalves(std::uint64_t low, std::uint64_t high) noexcept {
    const std::uint64_t halves[] = {low, high};
    return Load(halves);
  }
  void Store(void* to) const noexcept { std::memcpy(to, lanes_.data(), kBlockBytes); }
  [[nodiscard]] const Array& Lanes() const noexcept { return lanes_; }

  [[nodiscard]] Block operator|(Block other) const noexcept {
    return Each(other, [](unsigned left, unsigned right) { return left | right; });
  }
  [[nodiscard]] Block operator&(Block other) const noexcept {
    return Each(other, [](unsigned left, unsigned right) { return left & right; });
  }
  [[nodiscard]] Block Without(Block other) const noexcept {
    return Each(other, [](unsigned left, unsigned right) { return left & ~right; });
  }
  [[nodiscard]] Block operator-(Block other) const noexcept {
    return Each(other, [](unsigned left, unsigned right) { return left - right; });
  }
  [[nodiscard]] Block Left(int count) const noexcept {
    return Each(*this, [count](unsigned lane, unsigned) { return lane << count; });
  }
  [[nodiscard]] Block Right(int count) const noexcept {
    return Each(*this, [count](unsigned lane, unsigned) { return lane >> count; });
  }

  [[nodiscard]] Block EqualTo(Block other) const noexcept {
    return Each(other, [](unsigned left, unsigned right) { return left == right ? kOnes : 0; });
  }
  [[nodiscard]] Block EqualTo(Unit unit) const noexcept { return EqualTo(Block(unit)); }
  [[nodiscard]] Block SignedLess(Block other) const noexcept {
    return Each(other, [](unsigned left, unsigned right) {
      return (static_cast<Unit>(left) ^ kSign) < (static_cast<Unit>(right) ^ kSign) ? kOnes : 0;
    });
  }
  [[nodiscard]] Block Within(Unit first, Unit last) const noexcept {
    const unsigned from = static_cast<Code>(first);
    const unsigned to = static_cast<Code>(last);
    return Each(*this, [=](unsigned lane, unsigned) { return lane >= from && lane <= to ? kOnes : 0; });
  }

  [[nodiscard]] Hits<Unit> AsHits() const noexcept {
    constexpr unsigned kLane = (1U << sizeof(Unit)) - 1;
    unsigned bits = 0;
    for (std::size_t i = 0; i < kUnits; ++i) {
      if ((static_cast<Code>(lanes_[i]) & kSign) != 0) bits |= kLane << (i * sizeof(Unit));
    }
    return Hits<Unit>(bits);
  }

 private:
  using Code = std::conditional_t<sizeof(Unit) == 1, std::uint8_t, std::uint16_t>;
  static constexpr unsigned kOnes = 0xFFFF;
  static constexpr unsigned kSign = sizeof(Unit) == 1 ? 0x80 : 0x8000;

  template <class Function>
  Block Each(const Block& other, Function function) const {
    Block result;
    for (std::size_t i = 0; i < kUnits; ++i) {
      result.lanes_[i] =
          static_cast<Unit>(function(static_cast<Code>(lanes_[i]), static_cast<Code>(other.lanes_[i])));
    }
    return result;
  }

  Array lanes_{};
};

[[nodiscard]] inline Block<char16_t> SignedLesser(Block<char16_t> left, Block<char16_t> right) noexcept {
  const Block<char16_t> is_less = left.SignedLess(right);
  return (left & is_less) | right.Without(is_less);
}
[[nodiscard]] inline Block<char16_t> SignedGreater(Block<char16_t> left, Block<char16_t> right) noexcept {
  const Block<char16_t> is_less = left.SignedLess(right);
  return (right & is_less) | left.Without(is_less);
}

template <class Byte, std::size_t from = 0>
[[nodiscard]] Block<char16_t> WidenedLow(Block<Byte> bytes) noexcept {
  Block<char16_t>::Array units;
  for (std::size_t i = 0; i < units.size(); ++i)
    units[i] = static_cast<std::uint8_t>(bytes.Lanes()[from + i]);
  return Block<char16_t>(units);
}
template <class Byte>
[[nodiscard]] Block<char16_t> WidenedHigh(Block<Byte> bytes) noexcept {
  return WidenedLow<Byte, 8>(bytes);
}

[[nodiscard]] inline Block<std::uint8_t> Narrowed(Block<char16_t> low, Block<char16_t> high) noexcept {
  Block<std::uint8_t>::Array bytes;
  for (std::size_t i = 0; i < 8; ++i) {
    bytes[i] = static_cast<std::uint8_t>(low.Lanes()[i]);
    bytes[8 + i] = static_cast<std::uint8_t>(high.Lanes()[i]);
  }
  return Block<std::uint8_t>(bytes);
}
[[nodiscard]] inline Block<std::uint8_t> NarrowedLanes(Block<char16_t> low, Block<char16_t> high) noexcept {
  return Narrowed(low, high);
}

#endif

/// Returns `yes` in the lanes where `condition` is ones, `no` in the others.
template <class Unit>
[[nodiscard]] Block<Unit> Choose(Block<Unit> condition, Block<Unit> yes, Block<Unit> no) noexcept {
  return (condition & yes) | no.Without(condition);
}

/// Returns the letters A to Z in lower case, every other lane unchanged.
template <class Unit>
[[nodiscard]] Block<Unit> AsciiLowered(Block<Unit> text) noexcept {
  return text |
         (text.Within(static_cast<Unit>('A'), static_cast<Unit>('Z')) & Block(static_cast<Unit>(0x20)));
}

/// Returns whether all units are ASCII.
[[nodiscard]] inline bool AreAscii(Block<char16_t> units) noexcept {
  return (units & Block(char16_t{0xFF80})).EqualTo(u'\0').AsHits().All();
}

}  // namespace ravo::codec
