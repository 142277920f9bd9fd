#pragma once

#include <algorithm>
#include <atomic>
#include <span>

/// Run-time choice of the kernel for the processor.
namespace ravo::codec {

/// A list of kernels with identical results, and the one in use: the last one that the processor can run,
/// unless a test chooses another. `Kernel` has a member `runs_here`; the first kernel runs everywhere.
/// Lock-free: threads that ask at the same time choose the same one.
template <class Kernel>
class KernelChoice {
 public:
  // Untested: runs at compile time only.
  template <std::size_t size>
  constexpr explicit KernelChoice(const Kernel (&kernels)[size]) noexcept : kernels_(kernels) {}

  [[nodiscard]] std::span<const Kernel> All() const noexcept { return kernels_; }

  [[nodiscard]] const Kernel& Chosen() noexcept {
    const Kernel* const kernel = chosen_.load(std::memory_order_relaxed);
    return kernel != nullptr ? *kernel : Choose();
  }

  /// Uses `kernel`, or the processor's choice if it is null. Returns the previous one.
  const Kernel* Use(const Kernel* kernel) noexcept {
    return chosen_.exchange(kernel, std::memory_order_relaxed);
  }

 private:
  // Out of line: callers keep their arguments in registers.
  [[gnu::noinline, gnu::cold]] const Kernel& Choose() noexcept {
    const auto last = std::find_if(kernels_.rbegin(), kernels_.rend(),
                                   [](const Kernel& kernel) { return kernel.runs_here(); });
    chosen_.store(&*last, std::memory_order_relaxed);
    return *last;
  }

  std::span<const Kernel> kernels_;
  std::atomic<const Kernel*> chosen_{nullptr};
};

/// Uses a kernel for the lifetime of this object. For tests; not thread-safe.
template <class Kernel>
class ScopedKernel {
 public:
  ScopedKernel(KernelChoice<Kernel>& choice, const Kernel& kernel) noexcept
      : choice_(choice), previous_(choice.Use(&kernel)) {}
  ~ScopedKernel() { choice_.Use(previous_); }
  ScopedKernel(const ScopedKernel&) = delete;
  ScopedKernel& operator=(const ScopedKernel&) = delete;

 private:
  KernelChoice<Kernel>& choice_;
  const Kernel* previous_;
};

}  // namespace ravo::codec
