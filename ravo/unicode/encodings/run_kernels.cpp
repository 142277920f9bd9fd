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

// Two threads that come first together choose the same.
constinit std::atomic<const RunKernel*> chosen{nullptr};

const RunKernel& Choose() noexcept {
  const auto best = std::find_if(kKernels.rbegin(), kKernels.rend(),
                                 [](const RunKernel& kernel) { return kernel.runs_here(); });
  chosen.store(&*best, std::memory_order_relaxed);
  return *best;
}

}  // namespace

std::span<const RunKernel> RunKernels() noexcept { return kKernels; }

const RunKernel& ChosenRunKernel() noexcept {
  const RunKernel* const kernel = chosen.load(std::memory_order_relaxed);
  return kernel != nullptr ? *kernel : Choose();
}

ScopedRunKernel::ScopedRunKernel(const RunKernel& kernel) noexcept
    : previous_(chosen.exchange(&kernel, std::memory_order_relaxed)) {}

ScopedRunKernel::~ScopedRunKernel() { chosen.store(previous_, std::memory_order_relaxed); }

}  // namespace ravo::DIUnicode
