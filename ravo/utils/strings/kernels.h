#pragma once

#include <cstddef>
#include <span>
#include <string_view>

/// What string functions do faster on processors that have more than their target asks for. The sets give
/// identical results; the functions use the last one that runs. Here for tests and benchmarks.
namespace ravo::strings {

/// Of `places` places of a text, how many from the front can be passed over: at each of them the character is
/// not the first one of `ends`, or the one in the same place of `last_text` is not the second. Not all that
/// could be are passed over.
template <class Char>
using PassOver = std::size_t (*)(const Char* text, const Char* last_text, std::size_t places,
                                 const Char (&ends)[2]) noexcept;

struct StringKernel {
  std::string_view name;
  bool (*runs_here)() noexcept;
  PassOver<char> pass_over_bytes;
  PassOver<char16_t> pass_over_units;
};

/// All of them, the one that runs everywhere first.
[[nodiscard]] std::span<const StringKernel> StringKernels() noexcept;

/// The one in use.
[[nodiscard]] const StringKernel& ChosenKernel() noexcept;

/// Puts one of them in use for as long as this object lives. For tests; not for several threads.
class ScopedStringKernel {
 public:
  explicit ScopedStringKernel(const StringKernel& kernel) noexcept;
  ScopedStringKernel(const ScopedStringKernel&) = delete;
  ScopedStringKernel& operator=(const ScopedStringKernel&) = delete;
  ~ScopedStringKernel();

 private:
  const StringKernel* previous_;
};

}  // namespace ravo::strings
