#pragma once

#include <ravo/runtime/component.h>

#include <cstddef>
#include <cstdint>

/// The platform's automation interface and the structures that its calls take, in the platform's layout.
namespace ravo {

/// The kinds of a `DispatchValue`, with the platform's numbers.
namespace dispatch_type {
inline constexpr std::uint16_t kEmpty = 0;     ///< nothing
inline constexpr std::uint16_t kInt32 = 3;     ///< a 32-bit integer
inline constexpr std::uint16_t kDouble = 5;    ///< a floating-point number
inline constexpr std::uint16_t kText = 8;      ///< a text
inline constexpr std::uint16_t kDispatch = 9;  ///< an object with a dual interface
inline constexpr std::uint16_t kBoolean = 11;  ///< true or false
inline constexpr std::uint16_t kUnknown = 13;  ///< any object
}  // namespace dispatch_type

/// The platform's own variant, used in late-bound calls. It has no destructor: the receiver of a text or an
/// object owns it.
struct DispatchValue {
  std::uint16_t type = dispatch_type::kEmpty;  ///< one of `dispatch_type`
  std::uint16_t reserved[3]{};                 ///< reserved by the platform
  union {
    /// All bits of the value.
    std::int64_t bits = 0;
    /// A 32-bit integer.
    std::int32_t int32;
    /// A floating-point number.
    double number;
    /// -1 for true, 0 for false.
    std::int16_t boolean;
    /// A text, allocated as in `WideString`.
    char16_t* text;
    /// An object.
    IUnknown* object;
    /// Pads the structure to the size of the platform's.
    void* pointers[2];
  };
};

static_assert(sizeof(DispatchValue) == 8 + 2 * (sizeof(void*) < 8 ? 4 : sizeof(void*)));

/// The arguments of a late-bound call, in reverse order: the last one comes first.
struct DispatchArguments {
  DispatchValue* values = nullptr;    ///< the last argument first
  std::int32_t* named_ids = nullptr;  ///< identifiers of the named arguments
  std::uint32_t count = 0;            ///< number of all arguments
  std::uint32_t named_count = 0;      ///< number of named arguments
};

/// The error of a late-bound call; the receiver frees the texts.
struct DispatchError {
  std::uint16_t code = 0;            ///< the program's own number, or 0
  std::uint16_t reserved = 0;        ///< 0
  char16_t* source = nullptr;        ///< the component that failed
  char16_t* description = nullptr;   ///< the error message
  char16_t* help_file = nullptr;     ///< file with help
  std::uint32_t help_context = 0;    ///< topic in the help file
  void* reserved_pointer = nullptr;  ///< null
  ResultCode(RAVO_STDCALL* fill_in)(DispatchError* error) =
      nullptr;                           ///< deferred: fills in the texts; may be null
  ResultCode result = result_code::kOk;  ///< the platform's code of the error
};

/// The kind of access of a late-bound call: bits that can be combined.
namespace dispatch_call {
inline constexpr std::uint16_t kMethod = 1;       ///< calls an operation
inline constexpr std::uint16_t kPropertyGet = 2;  ///< reads a property
inline constexpr std::uint16_t kPropertyPut = 4;  ///< writes a property
}  // namespace dispatch_call

/// The platform's automation interface: calls by dispatch identifier.
struct IDispatch : IUnknown {
  /// The interface identifier.
  static constexpr Guid kInterfaceId{"{00020400-0000-0000-C000-000000000046}"};

  /// Sets `count` to 1 if the object has type information, else to 0.
  virtual ResultCode RAVO_STDCALL GetTypeInfoCount(std::uint32_t* count) noexcept = 0;
  /// Stores the platform's type information of the object, with a reference that the caller releases.
  virtual ResultCode RAVO_STDCALL GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                                              void** type_info) noexcept = 0;
  /// Stores the identifiers of `count` names in `ids`. `reserved` must be the zero identifier.
  virtual ResultCode RAVO_STDCALL GetIDsOfNames(const Guid& reserved, char16_t** names, std::uint32_t count,
                                                std::uint32_t locale, std::int32_t* ids) noexcept = 0;
  /// Calls the member with dispatch identifier `id`. `result`, `error` and `bad_argument` may be null.
  virtual ResultCode RAVO_STDCALL Invoke(std::int32_t id, const Guid& reserved, std::uint32_t locale,
                                         std::uint16_t flags, DispatchArguments* arguments,
                                         DispatchValue* result, DispatchError* error,
                                         std::uint32_t* bad_argument) noexcept = 0;

 protected:
  ~IDispatch() = default;
};

}  // namespace ravo
