#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <span>
#include <string_view>

/// The host's object model as a list, for programs that show it or iterate over it.
namespace ravo {

/// Dual: derived from `IDispatch`, called through the operation table or by dispatch identifier. Custom:
/// derived from `IUnknown`, called through the operation table alone.
enum class InterfaceKind : std::uint8_t { Dual, Custom };

/// A type library of the host.
struct TypeLibraryRow {
  /// The name without the "_TLB" of its module.
  std::string_view name;
  Guid identifier;  ///< of the type library
};

/// An interface of the host's object model.
struct HostInterfaceRow {
  std::string_view library;  ///< the type library that declares it
  std::string_view name;     ///< "IRavoSession"
  std::string_view base;     ///< "IDispatch" or "IUnknown"
  InterfaceKind kind;        ///< how it is called
  Guid identifier;           ///< what `QueryInterface` finds it by
  /// The number of operations that it adds to its base, counting readers and writers of properties.
  int own_operations;
};

/// A class of the host that a module creates itself.
struct HostClassRow {
  std::string_view library;  ///< the type library that declares it
  /// The factory of class "RavoZipper" is `CoRavoZipper`.
  std::string_view name;
  /// The interface that the factory returns.
  std::string_view returned;
  Guid identifier;  ///< of the class
};

/// All rows in declaration order, library by library.
[[nodiscard]] RAVO_API std::span<const TypeLibraryRow> TypeLibraryRows() noexcept;
/// All interfaces in declaration order, library by library.
[[nodiscard]] RAVO_API std::span<const HostInterfaceRow> HostInterfaceRows() noexcept;
/// All classes in declaration order, library by library.
[[nodiscard]] RAVO_API std::span<const HostClassRow> HostClassRows() noexcept;

/// "dual" or "custom".
[[nodiscard]] RAVO_API std::string_view InterfaceKindName(InterfaceKind kind) noexcept;

}  // namespace ravo
