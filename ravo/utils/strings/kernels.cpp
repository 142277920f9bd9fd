#include <ravo/utils/strings/find_wide.h>
#include <ravo/utils/strings/kernels.h>

#include <algorithm>
#include <array>
#include <atomic>

namespace ravo::strings {
namespace {

bool RunsEverywhere() noexcept { return true; }

template <class Char>
std::size_t PassNothingOver(const Char*, const Char*, std::size_t, const Char (&)[2]) noexcept {
  return 0;
}

constexpr std::array<StringKernel, 2> kKernels = {{
    {"everywhere", RunsEverywhere, PassNothingOver<char>, PassNothingOver<char16_t>},
    {"wide", CanPassOverWidely, PassOverWidely, PassOverWidely},
}};

// Two threads that come first together choose the same.
constinit std::atomic<const StringKernel*> chosen{nullptr};

const StringKernel& Choose() noexcept {
  const auto last = std::find_if(kKernels.rbegin(), kKernels.rend(),
                                 [](const StringKernel& kernel) { return kernel.runs_here(); });
  chosen.store(&*last, std::memory_order_relaxed);
  return *last;
}

}  // namespace

std::span<const StringKernel> StringKernels() noexcept { return kKernels; }

const StringKernel& ChosenKernel() noexcept {
  const StringKernel* const kernel = chosen.load(std::memory_order_relaxed);
  return kernel ? *kernel : Choose();
}

ScopedStringKernel::ScopedStringKernel(const StringKernel& kernel) noexcept
    : previous_(chosen.exchange(&kernel, std::memory_order_relaxed)) {}

ScopedStringKernel::~ScopedStringKernel() { chosen.store(previous_, std::memory_order_relaxed); }

}  // namespace ravo::strings
