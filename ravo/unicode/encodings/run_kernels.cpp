#include <ravo/unicode/encodings/run_blocks.h>

#include <algorithm>
#include <array>
#include <atomic>

namespace ravo::DIUnicode {
namespace {

bool RunsEverywhere() noexcept { return true; }

Run DecodeNone(ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNone(TextSpan, ByteRoom) noexcept { return {}; }
Run DecodeNoTable(const ByteTable&, ByteSpan, TextRoom) noexcept { return {}; }

constexpr std::array<RunKernel, 4> kKernels = {{
    {"plain", RunsEverywhere, DecodeNone, EncodeNone, DecodeNoTable, nullptr, nullptr},
    {"ascii", RunsEverywhere, DecodeUtf8Ascii, EncodeUtf8Ascii, DecodeSingleByteAscii, nullptr, nullptr},
    {"shuffling", HasByteShuffle, DecodeUtf8Shuffling, EncodeUtf8Shuffling, DecodeSingleByteAscii, nullptr,
     nullptr},
    {"wide", HasWideBlocks, DecodeUtf8Wide, EncodeUtf8Shuffling, DecodeSingleByteWide, DecodeUtf8TillWide,
     DecodeSingleByteTillWide},
}};

constexpr const RunKernel* kEverywhere = &kKernels[1];

}  // namespace

constinit std::atomic<const RunKernel*> chosen_run_kernel{kEverywhere};

// The first caller alone chooses, and no other one waits for it: until the choice is stored, other threads
// use the kernel that runs everywhere. All kernels give the same characters and bytes, each a prefix of what
// could be done.
void ChooseRunKernel() noexcept {
  static std::atomic<bool> is_chosen{false};
  if (is_chosen.exchange(true)) return;
  const auto best = std::find_if(kKernels.rbegin(), kKernels.rend(),
                                 [](const RunKernel& kernel) { return kernel.runs_here(); });
  chosen_run_kernel.store(&*best, std::memory_order_relaxed);
}

std::span<const RunKernel> RunKernels() noexcept { return kKernels; }

ScopedRunKernel::ScopedRunKernel(const RunKernel& kernel) noexcept
    : previous_((ChooseRunKernel(), chosen_run_kernel.exchange(&kernel, std::memory_order_relaxed))) {}

ScopedRunKernel::~ScopedRunKernel() { chosen_run_kernel.store(previous_, std::memory_order_relaxed); }

}  // namespace ravo::DIUnicode
