#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>

/// The base of all component interfaces, declared here so that no system header is needed. It has the layout
/// of the platform's component runtime: a pointer to such an object is a pointer to the system's own
/// `IUnknown`.
namespace ravo {

/// The result of an operation: a code of the platform, negative for a failure.
using ResultCode = std::int32_t;

/// The codes that this library returns or tests for.
namespace result_code {
inline constexpr ResultCode kOk = 0;                                                ///< success
inline constexpr ResultCode kNotImplemented = static_cast<ResultCode>(0x80004001);  ///< not implemented
inline constexpr ResultCode kNoInterface =
    static_cast<ResultCode>(0x80004002);  ///< the object lacks the interface
inline constexpr ResultCode kNullPointer = static_cast<ResultCode>(0x80004003);  ///< a result pointer is null
inline constexpr ResultCode kUnexpected = static_cast<ResultCode>(0x8000FFFF);   ///< any other failure
inline constexpr ResultCode kMemberNotFound =
    static_cast<ResultCode>(0x80020003);  ///< no member with this dispatch identifier
inline constexpr ResultCode kUnknownName = static_cast<ResultCode>(0x80020006);  ///< no member with this name
inline constexpr ResultCode kBadIndex = static_cast<ResultCode>(0x8002000B);     ///< an index out of range
inline constexpr ResultCode kNoAggregation =
    static_cast<ResultCode>(0x80040110);  ///< the class does not support aggregation
inline constexpr ResultCode kClassNotRegistered =
    static_cast<ResultCode>(0x80040154);  ///< the class is not registered
inline constexpr ResultCode kAlreadyRegistered =
    static_cast<ResultCode>(0x800401FC);  ///< the class is registered already
inline constexpr ResultCode kOutOfMemory = static_cast<ResultCode>(0x8007000E);  ///< out of memory
inline constexpr ResultCode kServerUnavailable =
    static_cast<ResultCode>(0x800706BA);  ///< the remote computer does not answer
inline constexpr ResultCode kServerFailed =
    static_cast<ResultCode>(0x80080005);  ///< the server failed to start
}  // namespace result_code

/// Returns whether `code` is a failure.
[[nodiscard]] constexpr bool Failed(ResultCode code) noexcept { return code < 0; }

/// The platform's base interface: reference counting and access to the other interfaces of an object.
struct IUnknown {
  /// The interface identifier.
  static constexpr Guid kInterfaceId{"{00000000-0000-0000-C000-000000000046}"};

  /// Stores another interface of the object in `object`, with a reference that the caller releases. Returns
  /// `kNoInterface` and stores null if the object does not implement it.
  virtual ResultCode RAVO_STDCALL QueryInterface(const Guid& interface_id, void** object) noexcept = 0;
  /// Adds a reference; returns the new count.
  virtual std::uint32_t RAVO_STDCALL AddRef() noexcept = 0;
  /// Removes a reference; returns the new count. The object is freed with its last reference.
  virtual std::uint32_t RAVO_STDCALL Release() noexcept = 0;

 protected:
  // Objects are freed by their last `Release`, never deleted through an interface.
  ~IUnknown() = default;
};

}  // namespace ravo
