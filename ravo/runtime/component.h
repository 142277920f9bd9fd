#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>

/// The base of all component interfaces, declared here so that nobody needs a system header for it. The
/// layout is the one of the platform's component runtime: a pointer to such an object and a pointer to the
/// system's own `IUnknown` are the same thing.
namespace ravo {

/// What an operation answers: the platform's code, negative for a failure.
using ResultCode = std::int32_t;

/// The codes that this library itself looks at or gives.
namespace result_code {
inline constexpr ResultCode kOk = 0;  ///< done
inline constexpr ResultCode kNotImplemented =
    static_cast<ResultCode>(0x80004001);  ///< no such operation here
inline constexpr ResultCode kNoInterface =
    static_cast<ResultCode>(0x80004002);  ///< the object lacks the interface
inline constexpr ResultCode kNullPointer = static_cast<ResultCode>(0x80004003);  ///< a result has no place
inline constexpr ResultCode kUnexpected = static_cast<ResultCode>(0x8000FFFF);   ///< nothing better fits
inline constexpr ResultCode kMemberNotFound =
    static_cast<ResultCode>(0x80020003);  ///< no member of that dispatch identifier
inline constexpr ResultCode kUnknownName = static_cast<ResultCode>(0x80020006);  ///< no member of that name
inline constexpr ResultCode kBadIndex = static_cast<ResultCode>(0x8002000B);     ///< an index out of range
inline constexpr ResultCode kNoAggregation =
    static_cast<ResultCode>(0x80040110);  ///< the class cannot be part of another object
inline constexpr ResultCode kClassNotRegistered =
    static_cast<ResultCode>(0x80040154);  ///< nobody offers the class
inline constexpr ResultCode kAlreadyRegistered =
    static_cast<ResultCode>(0x800401FC);  ///< the class is offered already
inline constexpr ResultCode kOutOfMemory = static_cast<ResultCode>(0x8007000E);  ///< no memory
inline constexpr ResultCode kServerUnavailable =
    static_cast<ResultCode>(0x800706BA);  ///< the other computer does not answer
inline constexpr ResultCode kServerFailed =
    static_cast<ResultCode>(0x80080005);  ///< the server does not start
}  // namespace result_code

/// Whether a code is that of a failure.
[[nodiscard]] constexpr bool Failed(ResultCode code) noexcept { return code < 0; }

/// The platform's base interface: other interfaces of the same object, and its reference count.
struct IUnknown {
  /// What `QueryInterface` finds it by.
  static constexpr Guid kInterfaceId{"{00000000-0000-0000-C000-000000000046}"};

  /// Gives another interface of the object, with a reference that the caller releases; null together with
  /// `kNoInterface` where the object has none of that identifier.
  virtual ResultCode RAVO_STDCALL QueryInterface(const Guid& interface_id, void** object) noexcept = 0;
  /// One reference more; answers how many there are.
  virtual std::uint32_t RAVO_STDCALL AddRef() noexcept = 0;
  /// One reference less; the object ends with the last. Answers how many are left.
  virtual std::uint32_t RAVO_STDCALL Release() noexcept = 0;

 protected:
  // An object ends with its last reference, never by deletion through an interface.
  ~IUnknown() = default;
};

}  // namespace ravo
