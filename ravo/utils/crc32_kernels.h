#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The ways to compute the one CRC-32. They give identical results; `UpdateCrc32` uses the fastest that the
/// processor can run. Here for tests and benchmarks.
namespace ravo::utils {

struct Crc32Kernel {
  std::string_view name;
  std::uint32_t (*update)(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;
  bool (*runs_here)() noexcept;
};

/// All of them, the plain reference first and the fastest last.
[[nodiscard]] std::span<const Crc32Kernel> Crc32Kernels() noexcept;

/// Makes `UpdateCrc32` use one kernel for as long as this object lives. For tests; not for several threads.
class ScopedCrc32Kernel {
 public:
  explicit ScopedCrc32Kernel(const Crc32Kernel& kernel) noexcept;
  ScopedCrc32Kernel(const ScopedCrc32Kernel&) = delete;
  ScopedCrc32Kernel& operator=(const ScopedCrc32Kernel&) = delete;
  ~ScopedCrc32Kernel();

 private:
  decltype(Crc32Kernel::update) previous_;
};

/// Byte by byte.
[[nodiscard]] std::uint32_t UpdateCrc32Bytewise(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Sixteen bytes at a time, each through a table of its own.
[[nodiscard]] std::uint32_t UpdateCrc32Sliced(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Five words at a time, each through tables of its own, so that their look-ups do not wait for each other.
[[nodiscard]] std::uint32_t UpdateCrc32Braided(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Bytes carried on over distances that leave the checksum what it is, blocks of them at a time and without a
/// table, until few are left for the tables. Texts of less than 1 KiB go through the tables at once.
[[nodiscard]] std::uint32_t UpdateCrc32Carried(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Carry-less multiplication (PCLMULQDQ with SSE4.1), where `CanMultiplyCarryless`.
[[nodiscard]] std::uint32_t UpdateCrc32Carryless(std::uint32_t crc,
                                                 std::span<const std::byte> bytes) noexcept;
[[nodiscard]] bool CanMultiplyCarryless() noexcept;

}  // namespace ravo::utils
