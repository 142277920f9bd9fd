#include <ravo/codec/kernels/kernel_set.h>

#include <algorithm>
#include <array>
#include <atomic>

namespace ravo::codec {
namespace {

bool RunsEverywhere() noexcept { return true; }

Run DecodeNone(ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNone(TextSpan, ByteRoom) noexcept { return {}; }
Run DecodeNoTable(const ByteTable&, ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNoTable(const ReverseTable&, bool, TextSpan, ByteRoom) noexcept { return {}; }
Run DecodeNoUnits(bool, bool, ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNoUnits(bool, bool, TextSpan, ByteRoom) noexcept { return {}; }

constexpr std::array<KernelSet, 4> kKernels = {{
    {"plain", RunsEverywhere, DecodeNone, EncodeNone, DecodeNoTable, EncodeNoTable, DecodeNoUnits,
     EncodeNoUnits, nullptr, nullptr},
    {"ascii", RunsEverywhere, DecodeUtf8Ascii, EncodeUtf8Ascii, DecodeSingleByteAscii, EncodeSingleByteBlocks,
     DecodeUnitBlocks, EncodeUnitBlocks, nullptr, nullptr},
    {"shuffling", HasByteShuffle, DecodeUtf8Shuffling, EncodeUtf8Shuffling, DecodeSingleByteAscii,
     EncodeSingleByteBlocks, DecodeUnitBlocks, EncodeUnitBlocks, nullptr, nullptr},
    {"wide", HasWideBlocks, DecodeUtf8Wide, EncodeUtf8Shuffling, DecodeSingleByteWide, EncodeSingleByteBlocks,
     DecodeUnitBlocks, EncodeUnitBlocks, DecodeUtf8UntilWide, DecodeSingleByteUntilWide},
}};

constexpr const KernelSet* kEverywhere = &kKernels[1];

}  // namespace

constinit std::atomic<const KernelSet*> chosen_kernels{kEverywhere};

// The first caller alone chooses, and no other one waits for it: until the choice is stored, other threads
// use the kernel that runs everywhere. All kernels give the same characters and bytes, each a prefix of what
// could be done.
void ChooseKernels() noexcept {
  static std::atomic<bool> is_chosen{false};
  if (is_chosen.exchange(true)) return;
  const auto best = std::find_if(kKernels.rbegin(), kKernels.rend(),
                                 [](const KernelSet& kernel) { return kernel.runs_here(); });
  chosen_kernels.store(&*best, std::memory_order_relaxed);
}

std::span<const KernelSet> KernelSets() noexcept { return kKernels; }

ScopedKernels::ScopedKernels(const KernelSet& kernel) noexcept
    : previous_((ChooseKernels(), chosen_kernels.exchange(&kernel, std::memory_order_relaxed))) {}

ScopedKernels::~ScopedKernels() { chosen_kernels.store(previous_, std::memory_order_relaxed); }

}  // namespace ravo::codec
