#pragma once

#include <ravo/runtime/component.h>

#include <cstddef>
#include <cstdint>

/// The platform's automation base with the structures that its calls take, laid out as the platform lays them
/// out.
namespace ravo {

/// What a `DispatchValue` holds, with the platform's numbers.
namespace dispatch_type {
inline constexpr std::uint16_t kEmpty = 0;     ///< nothing
inline constexpr std::uint16_t kInt32 = 3;     ///< a 32-bit integer
inline constexpr std::uint16_t kDouble = 5;    ///< a floating-point number
inline constexpr std::uint16_t kText = 8;      ///< a text
inline constexpr std::uint16_t kDispatch = 9;  ///< an object with a dual interface
inline constexpr std::uint16_t kBoolean = 11;  ///< true or false
inline constexpr std::uint16_t kUnknown = 13;  ///< any object
}  // namespace dispatch_type

/// The platform's own variant, as it travels through late-bound calls. It frees nothing: whoever receives one
/// with a text or an object owns that.
struct DispatchValue {
  std::uint16_t type = dispatch_type::kEmpty;  ///< one of `dispatch_type`
  std::uint16_t reserved[3]{};                 ///< the platform's
  union {
    /// All bits of the value.
    std::int64_t bits = 0;
    /// A 32-bit integer.
    std::int32_t int32;
    /// A floating-point number.
    double number;
    /// All bits set for true.
    std::int16_t boolean;
    /// A text as `WideString` holds it.
    char16_t* text;
    /// An object.
    IUnknown* object;
    /// For the size of the structure.
    void* pointers[2];
  };
};

static_assert(sizeof(DispatchValue) == 8 + 2 * (sizeof(void*) < 8 ? 4 : sizeof(void*)));

/// The arguments of a late-bound call. They stand in reverse order: the last one first.
struct DispatchArguments {
  DispatchValue* values = nullptr;    ///< the last argument first
  std::int32_t* named_ids = nullptr;  ///< identifiers of the named ones
  std::uint32_t count = 0;            ///< of all arguments
  std::uint32_t named_count = 0;      ///< of the named ones
};

/// What a late-bound call tells when it raised an error of its own; the receiver frees the texts.
struct DispatchError {
  std::uint16_t code = 0;            ///< the program's own number, or 0
  std::uint16_t reserved = 0;        ///< 0
  char16_t* source = nullptr;        ///< who raised it
  char16_t* description = nullptr;   ///< what happened
  char16_t* help_file = nullptr;     ///< where help stands
  std::uint32_t help_context = 0;    ///< which topic of the help
  void* reserved_pointer = nullptr;  ///< null
  ResultCode(RAVO_STDCALL* fill_in)(DispatchError* error) =
      nullptr;                           ///< fills the texts in when they are wanted; may be null
  ResultCode result = result_code::kOk;  ///< the platform's code of the error
};

/// How a late-bound call reaches a member: bits, some of which may stand together.
namespace dispatch_call {
inline constexpr std::uint16_t kMethod = 1;       ///< calls an operation
inline constexpr std::uint16_t kPropertyGet = 2;  ///< reads a property
inline constexpr std::uint16_t kPropertyPut = 4;  ///< writes a property
}  // namespace dispatch_call

/// The platform's automation base: calls by dispatch identifier.
struct IDispatch : IUnknown {
  /// What `QueryInterface` finds it by.
  static constexpr Guid kInterfaceId{"{00020400-0000-0000-C000-000000000046}"};

  /// 1 where the object has type information, 0 where it has none.
  virtual ResultCode RAVO_STDCALL GetTypeInfoCount(std::uint32_t* count) noexcept = 0;
  /// The platform's description of the object's type, with a reference of its own.
  virtual ResultCode RAVO_STDCALL GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                                              void** type_info) noexcept = 0;
  /// `reserved` is an identifier of nothing but zeros.
  virtual ResultCode RAVO_STDCALL GetIDsOfNames(const Guid& reserved, char16_t** names, std::uint32_t count,
                                                std::uint32_t locale, std::int32_t* ids) noexcept = 0;
  /// `result`, `error` and `bad_argument` may be null.
  virtual ResultCode RAVO_STDCALL Invoke(std::int32_t id, const Guid& reserved, std::uint32_t locale,
                                         std::uint16_t flags, DispatchArguments* arguments,
                                         DispatchValue* result, DispatchError* error,
                                         std::uint32_t* bad_argument) noexcept = 0;

 protected:
  ~IDispatch() = default;
};

}  // namespace ravo
