#include <ravo/utils/crc32.h>
#include <ravo/utils/crc32_kernels.h>

namespace ravo {
namespace utils {
namespace {

bool RunsEverywhere() noexcept { return true; }

constexpr Crc32Kernel kKernels[] = {{"bytewise", UpdateCrc32Bytewise, RunsEverywhere},
                                    {"braided", UpdateCrc32Braided, RunsEverywhere},
                                    {"carryless", UpdateCrc32Carryless, CanMultiplyCarryless}};

}  // namespace

constinit codec::KernelChoice<Crc32Kernel> crc32_choice(kKernels);

}  // namespace utils

std::uint32_t UpdateCrc32(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  return utils::crc32_choice.Chosen().update(crc, bytes);
}

}  // namespace ravo
