#pragma once

#include <ravo/runtime/component.h>
#include <ravo/runtime/error.h>

#include <concepts>
#include <cstddef>
#include <utility>

namespace ravo {

/// Throws `ComponentError` with `code` and the message that the interface is not supported.
[[noreturn]] RAVO_API void RaiseInterfaceNotSupported(ResultCode code);

/// A counted reference to a component object, or null. References may be passed between threads freely; a
/// single `ComponentPtr` must not be used by two threads at once.
template <class Interface>
class ComponentPtr {
 public:
  ComponentPtr() noexcept = default;
  /// Constructs a null reference.
  ComponentPtr(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor)

  /// Adds a reference to `object`.
  explicit ComponentPtr(Interface* object) noexcept : object_(object) {
    if (object_) object_->AddRef();
  }

  /// Adds a reference to the same object.
  ComponentPtr(const ComponentPtr& other) noexcept : ComponentPtr(other.object_) {}
  /// Moves the reference; `other` becomes null.
  ComponentPtr(ComponentPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

  /// Moves a reference to a derived interface.
  template <class Derived>
  requires std::convertible_to<Derived*, Interface*> ComponentPtr(ComponentPtr<Derived> other)
  noexcept  // NOLINT(google-explicit-constructor)
      : object_(other.Detach()) {}

  /// Releases the current reference and takes over that of `other`.
  ComponentPtr& operator=(ComponentPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  ~ComponentPtr() {
    if (object_) object_->Release();
  }

  /// Returns a pointer that owns a reference of the caller, without adding one.
  [[nodiscard]] static ComponentPtr Adopt(Interface* object) noexcept {
    ComponentPtr pointer;
    pointer.object_ = object;
    return pointer;
  }

  /// Releases ownership and returns the object; the caller owns the reference.
  [[nodiscard]] Interface* Detach() noexcept { return std::exchange(object_, nullptr); }

  /// Returns the object without adding a reference, or null.
  [[nodiscard]] Interface* Get() const noexcept { return object_; }
  /// Accesses the object; must not be null.
  Interface* operator->() const noexcept { return object_; }
  /// Accesses the object; must not be null.
  Interface& operator*() const noexcept { return *object_; }
  /// Returns whether the reference is not null.
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// Returns another interface of the object; null if this reference is null. Throws `ComponentError` if the
  /// object does not support the interface.
  ///
  /// `Other` may be a module's own declaration that derives from a declared interface: it has the identifier
  /// of its base.
  template <class Other>
  [[nodiscard]] ComponentPtr<Other> Query() const {
    ResultCode code = result_code::kOk;
    ComponentPtr<Other> other = Ask<Other>(code);
    if (object_ && !other) RaiseInterfaceNotSupported(code);
    return other;
  }

  /// Returns another interface of the object; null if the object does not support it or this reference is
  /// null.
  template <class Other>
  [[nodiscard]] ComponentPtr<Other> TryQuery() const noexcept {
    ResultCode code = result_code::kOk;
    return Ask<Other>(code);
  }

  /// Returns whether both refer to the same interface of the same object, or are both null.
  friend bool operator==(const ComponentPtr& left, const ComponentPtr& right) noexcept {
    return left.object_ == right.object_;
  }

 private:
  template <class Other>
  ComponentPtr<Other> Ask(ResultCode& code) const noexcept {
    void* other = nullptr;
    if (object_) code = object_->QueryInterface(Other::kInterfaceId, &other);
    // Objects may break the rules: a pointer returned with a failure is not a reference, and success needs
    // one.
    if (Failed(code)) return nullptr;
    if (!other) code = result_code::kNoInterface;
    return ComponentPtr<Other>::Adopt(static_cast<Other*>(other));
  }

  Interface* object_ = nullptr;
};

}  // namespace ravo
