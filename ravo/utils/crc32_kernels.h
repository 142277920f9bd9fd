#pragma once

#include <ravo/codec/kernels/kernel_choice.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The kernels of the CRC-32. They give identical results; `UpdateCrc32` uses the fastest one that the
/// processor can run. Declared here for tests and benchmarks.
namespace ravo::utils {

struct Crc32Kernel {
  std::string_view name;
  std::uint32_t (*update)(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;
  bool (*runs_here)() noexcept;
};

extern constinit codec::KernelChoice<Crc32Kernel> crc32_choice;

/// Returns all kernels, the plain reference first and the fastest last.
[[nodiscard]] inline std::span<const Crc32Kernel> Crc32Kernels() noexcept { return crc32_choice.All(); }

/// Makes `UpdateCrc32` use one kernel for the lifetime of this object. For tests; not thread-safe.
class ScopedCrc32Kernel : public codec::ScopedKernel<Crc32Kernel> {
 public:
  explicit ScopedCrc32Kernel(const Crc32Kernel& kernel) noexcept : ScopedKernel(crc32_choice, kernel) {}
};

/// The reference: byte by byte, with one table.
[[nodiscard]] std::uint32_t UpdateCrc32Bytewise(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Five words at a time in independent strands, which shortens the dependency chain of table lookups.
[[nodiscard]] std::uint32_t UpdateCrc32Braided(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Carry-less multiplication (PCLMULQDQ with SSE4.1), if `CanMultiplyCarryless`.
[[nodiscard]] std::uint32_t UpdateCrc32Carryless(std::uint32_t crc,
                                                 std::span<const std::byte> bytes) noexcept;
[[nodiscard]] bool CanMultiplyCarryless() noexcept;

}  // namespace ravo::utils
