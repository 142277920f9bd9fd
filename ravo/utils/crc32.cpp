#include <ravo/utils/crc32.h>
#include <ravo/utils/crc32_kernels.h>

#include <array>
#include <atomic>

namespace ravo {
namespace utils {
namespace {

using Update = decltype(Crc32Kernel::update);

bool RunsEverywhere() noexcept { return true; }

constexpr std::array<Crc32Kernel, 5> kKernels = {{{"bytewise", UpdateCrc32Bytewise, RunsEverywhere},
                                                  {"sliced", UpdateCrc32Sliced, RunsEverywhere},
                                                  {"braided", UpdateCrc32Braided, RunsEverywhere},
                                                  {"carried", UpdateCrc32Carried, RunsEverywhere},
                                                  {"carryless", UpdateCrc32Carryless, CanMultiplyCarryless}}};

std::uint32_t ChooseAndUpdate(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

// Two threads that race to the first call choose the same kernel.
constinit std::atomic<Update> chosen{ChooseAndUpdate};

std::uint32_t ChooseAndUpdate(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  // Untested: the processor that measures coverage has the instructions; the tests force each kernel.
  const Update update = CanMultiplyCarryless() ? UpdateCrc32Carryless : UpdateCrc32Carried;
  chosen.store(update, std::memory_order_relaxed);
  return update(crc, bytes);
}

}  // namespace

std::span<const Crc32Kernel> Crc32Kernels() noexcept { return kKernels; }

ScopedCrc32Kernel::ScopedCrc32Kernel(const Crc32Kernel& kernel) noexcept
    : previous_(chosen.exchange(kernel.update, std::memory_order_relaxed)) {}

ScopedCrc32Kernel::~ScopedCrc32Kernel() { chosen.store(previous_, std::memory_order_relaxed); }

}  // namespace utils

std::uint32_t UpdateCrc32(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  return utils::chosen.load(std::memory_order_relaxed)(crc, bytes);
}

}  // namespace ravo
