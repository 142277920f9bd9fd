#pragma once

#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/dispatch.h>

#include <atomic>
#include <concepts>
#include <cstdint>
#include <utility>

namespace ravo {

/// Returns whether `interface_id` identifies `Interface` or one of the platform's interfaces that it derives
/// from.
template <class Interface>
[[nodiscard]] constexpr bool Answers(const Guid& interface_id) noexcept {
  // A copy keeps the constant of an exported interface out of the library's exports.
  constexpr Guid own = Interface::kInterfaceId;
  // Untested: `derived_from` is a constant of each instance.
  return interface_id == own || interface_id == IUnknown::kInterfaceId ||
         (std::derived_from<Interface, IDispatch> && interface_id == IDispatch::kInterfaceId);
}

/// Implements `QueryInterface` for an object whose interfaces are those that `Answers` accepts. They form a
/// single inheritance chain, so one pointer serves all of them. Returns `kNullPointer` if `object` is null.
template <class Interface>
[[nodiscard]] ResultCode AnswerQuery(Interface& self, const Guid& interface_id, void** object) noexcept {
  if (!object) return result_code::kNullPointer;
  *object = Answers<Interface>(interface_id) ? &self : nullptr;
  if (!*object) return result_code::kNoInterface;
  self.AddRef();
  return result_code::kOk;
}

/// Implements identity and reference counting for `Interface`: the object answers to `Interface` and to the
/// platform's interfaces that it derives from, and frees itself with its last reference. Create objects with
/// `MakeComponent`.
template <class Interface>
class ComponentObject : public Interface {
 public:
  ComponentObject() = default;
  ComponentObject(const ComponentObject&) = delete;
  ComponentObject& operator=(const ComponentObject&) = delete;
  virtual ~ComponentObject() = default;

  /// Stores `Interface` or one of the platform's interfaces that it derives from in `object`. Returns
  /// `kNoInterface` for any other, and `kNullPointer` if `object` is null.
  ResultCode RAVO_STDCALL QueryInterface(const Guid& interface_id, void** object) noexcept override {
    return AnswerQuery<Interface>(*this, interface_id, object);
  }

  /// Adds a reference; returns the new count.
  std::uint32_t RAVO_STDCALL AddRef() noexcept override { return ++references_; }

  /// Removes a reference; returns the new count. The object is freed with its last reference.
  std::uint32_t RAVO_STDCALL Release() noexcept override {
    const std::uint32_t left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<std::uint32_t> references_{1};
};

/// An object with a dual interface but without type information and member names: only `Invoke` of
/// `IDispatch` remains to be implemented.
template <class Interface>
class DispatchObject : public ComponentObject<Interface> {
 public:
  /// Sets `count` to 0: there is no type information.
  ResultCode RAVO_STDCALL GetTypeInfoCount(std::uint32_t* count) noexcept override {
    if (!count) return result_code::kNullPointer;
    *count = 0;
    return result_code::kOk;
  }

  /// Returns `kBadIndex`: there is no type information.
  ResultCode RAVO_STDCALL GetTypeInfo(std::uint32_t, std::uint32_t, void** type_info) noexcept override {
    if (type_info) *type_info = nullptr;
    return result_code::kBadIndex;
  }

  /// Returns `kUnknownName` and sets each identifier to -1: there are no names.
  ResultCode RAVO_STDCALL GetIDsOfNames(const Guid&, char16_t**, std::uint32_t count, std::uint32_t,
                                        std::int32_t* ids) noexcept override {
    for (std::uint32_t i = 0; ids && i < count; ++i) ids[i] = -1;
    return result_code::kUnknownName;
  }
};

/// Creates an object and returns its first reference.
template <class Object, class... Arguments>
[[nodiscard]] ComponentPtr<Object> MakeComponent(Arguments&&... arguments) {
  return ComponentPtr<Object>::Adopt(new Object(std::forward<Arguments>(arguments)...));
}

}  // namespace ravo
