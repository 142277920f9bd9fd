#pragma once

#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/dispatch.h>

#include <atomic>
#include <concepts>
#include <cstdint>
#include <utility>

namespace ravo {

/// Whether an identifier is that of `Interface` or of one of the platform's interfaces below it.
template <class Interface>
[[nodiscard]] constexpr bool Answers(const Guid& interface_id) noexcept {
  // A copy keeps the constant of an exported interface out of the library's exports.
  constexpr Guid own = Interface::kInterfaceId;
  // Untested: `derived_from` is a constant of each instance.
  return interface_id == own || interface_id == IUnknown::kInterfaceId ||
         (std::derived_from<Interface, IDispatch> && interface_id == IDispatch::kInterfaceId);
}

/// `QueryInterface` of an object whose interfaces are those that `Answers` names: they form one line, so that
/// one pointer stands for all of them. `kNullPointer` where there is no place for the result.
template <class Interface>
[[nodiscard]] ResultCode AnswerQuery(Interface& self, const Guid& interface_id, void** object) noexcept {
  if (!object) return result_code::kNullPointer;
  *object = Answers<Interface>(interface_id) ? &self : nullptr;
  if (!*object) return result_code::kNoInterface;
  self.AddRef();
  return result_code::kOk;
}

/// Identity and reference count of an object that implements `Interface`: it answers to that interface and to
/// those of the platform below it, and ends with its last reference. Make one with `MakeComponent`.
template <class Interface>
class ComponentObject : public Interface {
 public:
  ComponentObject() = default;
  ComponentObject(const ComponentObject&) = delete;
  ComponentObject& operator=(const ComponentObject&) = delete;
  virtual ~ComponentObject() = default;

  /// `Interface` and the platform's interfaces below it; `kNullPointer` where there is no place for the
  /// result.
  ResultCode RAVO_STDCALL QueryInterface(const Guid& interface_id, void** object) noexcept override {
    return AnswerQuery<Interface>(*this, interface_id, object);
  }

  /// One reference more; answers how many there are.
  std::uint32_t RAVO_STDCALL AddRef() noexcept override { return ++references_; }

  /// One reference less; the object ends with the last. Answers how many are left.
  std::uint32_t RAVO_STDCALL Release() noexcept override {
    const std::uint32_t left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<std::uint32_t> references_{1};
};

/// An object whose interface is dual: without type information and names, so that what remains to be
/// implemented of `IDispatch` is `Invoke`.
template <class Interface>
class DispatchObject : public ComponentObject<Interface> {
 public:
  /// There is no type information: the count is 0.
  ResultCode RAVO_STDCALL GetTypeInfoCount(std::uint32_t* count) noexcept override {
    if (!count) return result_code::kNullPointer;
    *count = 0;
    return result_code::kOk;
  }

  /// There is no type information: `kBadIndex`.
  ResultCode RAVO_STDCALL GetTypeInfo(std::uint32_t, std::uint32_t, void** type_info) noexcept override {
    if (type_info) *type_info = nullptr;
    return result_code::kBadIndex;
  }

  /// There are no names: `kUnknownName`, and -1 for each identifier.
  ResultCode RAVO_STDCALL GetIDsOfNames(const Guid&, char16_t**, std::uint32_t count, std::uint32_t,
                                        std::int32_t* ids) noexcept override {
    for (std::uint32_t i = 0; ids && i < count; ++i) ids[i] = -1;
    return result_code::kUnknownName;
  }
};

/// Makes an object; the result is its first reference.
template <class Object, class... Arguments>
[[nodiscard]] ComponentPtr<Object> MakeComponent(Arguments&&... arguments) {
  return ComponentPtr<Object>::Adopt(new Object(std::forward<Arguments>(arguments)...));
}

}  // namespace ravo
