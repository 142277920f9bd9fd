#pragma once

#include <ravo/runtime/component.h>
#include <ravo/runtime/error.h>

#include <concepts>
#include <cstddef>
#include <utility>

namespace ravo {

/// Raises `ComponentError` with `code`, saying that the interface is not supported.
[[noreturn]] RAVO_API void RaiseInterfaceNotSupported(ResultCode code);

/// One reference to a component object, released when it goes; null is none. Like the objects that it refers
/// to, it is passed about freely between threads, and one such pointer is used by one thread at a time.
template <class Interface>
class ComponentPtr {
 public:
  ComponentPtr() noexcept = default;
  /// None.
  ComponentPtr(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor)

  /// Adds a reference of its own.
  explicit ComponentPtr(Interface* object) noexcept : object_(object) {
    if (object_) object_->AddRef();
  }

  /// A reference more to the same object.
  ComponentPtr(const ComponentPtr& other) noexcept : ComponentPtr(other.object_) {}
  /// Takes the reference over; `other` is null then.
  ComponentPtr(ComponentPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

  /// Takes over a reference to an interface below this one.
  template <class Derived>
  requires std::convertible_to<Derived*, Interface*> ComponentPtr(ComponentPtr<Derived> other)
  noexcept  // NOLINT(google-explicit-constructor)
      : object_(other.Detach()) {}

  /// Releases its own reference and takes the other.
  ComponentPtr& operator=(ComponentPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  ~ComponentPtr() {
    if (object_) object_->Release();
  }

  /// Takes over a reference that the caller owns.
  [[nodiscard]] static ComponentPtr Adopt(Interface* object) noexcept {
    ComponentPtr pointer;
    pointer.object_ = object;
    return pointer;
  }

  /// Hands the reference over to the caller.
  [[nodiscard]] Interface* Detach() noexcept { return std::exchange(object_, nullptr); }

  /// The object, without a reference of its own; null for none.
  [[nodiscard]] Interface* Get() const noexcept { return object_; }
  /// The object; not for null.
  Interface* operator->() const noexcept { return object_; }
  /// The object; not for null.
  Interface& operator*() const noexcept { return *object_; }
  /// Whether there is an object.
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// Another interface of the object; raises `ComponentError` where the object does not support it. `Other`
  /// may be a module's own description of a declared interface: it has the identifier of its base. Null gives
  /// null.
  template <class Other>
  [[nodiscard]] ComponentPtr<Other> Query() const {
    ResultCode code = result_code::kOk;
    ComponentPtr<Other> other = Ask<Other>(code);
    if (object_ && !other) RaiseInterfaceNotSupported(code);
    return other;
  }

  /// As `Query`, but null where the object does not support the interface.
  template <class Other>
  [[nodiscard]] ComponentPtr<Other> TryQuery() const noexcept {
    ResultCode code = result_code::kOk;
    return Ask<Other>(code);
  }

  /// Whether both are the same interface of the same object, or both null.
  friend bool operator==(const ComponentPtr& left, const ComponentPtr& right) noexcept {
    return left.object_ == right.object_;
  }

 private:
  template <class Other>
  ComponentPtr<Other> Ask(ResultCode& code) const noexcept {
    void* other = nullptr;
    if (object_) code = object_->QueryInterface(Other::kInterfaceId, &other);
    // An object may not keep to the rules: a pointer beside a failure is no reference, success needs one.
    if (Failed(code)) return nullptr;
    if (!other) code = result_code::kNoInterface;
    return ComponentPtr<Other>::Adopt(static_cast<Other*>(other));
  }

  Interface* object_ = nullptr;
};

}  // namespace ravo
