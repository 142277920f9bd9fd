#pragma once

/// A build with RAVO_CHECK_HANDLES knows which handles are open, and refuses the closed ones instead of
/// reading freed memory.
namespace ravo::c {

#ifdef RAVO_CHECK_HANDLES

/// What every handle is: its address is known from its first moment to its last.
class Handle {
 public:
  Handle();
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle();
};

/// Whether a handle is neither null nor open.
[[nodiscard]] bool IsClosed(const Handle* handle) noexcept;

/// Ends the program if a handle is closed: for functions that cannot return a failure.
void RefuseClosed(const Handle* handle) noexcept;

#else

struct Handle {};

[[nodiscard]] constexpr bool IsClosed(const Handle* /*handle*/) noexcept { return false; }

constexpr void RefuseClosed(const Handle* /*handle*/) noexcept {}

#endif

[[nodiscard]] inline bool IsOpen(const Handle* handle) noexcept {
  return handle != nullptr && !IsClosed(handle);
}

template <class Opened>
void Close(Opened* handle) noexcept {
  RefuseClosed(handle);
  delete handle;
}

}  // namespace ravo::c
