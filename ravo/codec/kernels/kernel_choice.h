#pragma once

#include <algorithm>
#include <atomic>
#include <span>

/// The one way in which a faster form of a job is chosen when it runs.
namespace ravo::codec {

/// Some sets of functions that give identical results, and the one in use: the last that runs on this
/// processor, unless a test says otherwise. `Kernel` has a member `runs_here`; the first one runs everywhere.
/// Threads that ask at the same time choose the same one, and none waits.
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

  /// Puts `kernel` in use, or with null the choice back to the processor. Returns what was in use before.
  const Kernel* Use(const Kernel* kernel) noexcept {
    return chosen_.exchange(kernel, std::memory_order_relaxed);
  }

 private:
  const Kernel& Choose() noexcept {
    const auto last = std::find_if(kernels_.rbegin(), kernels_.rend(),
                                   [](const Kernel& kernel) { return kernel.runs_here(); });
    chosen_.store(&*last, std::memory_order_relaxed);
    return *last;
  }

  std::span<const Kernel> kernels_;
  std::atomic<const Kernel*> chosen_{nullptr};
};

/// Puts a kernel in use for as long as this object lives. For tests, one thread at a time.
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
