#pragma once

#include <ravo/runtime/component_factory.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>

namespace ravo {

namespace platform {
class ComponentCalls;
}  // namespace platform

/// A class that this process itself offers, for the lifetime of this object: the creators find it under its
/// identifier.
///
/// On Windows it is a class object of the platform's component runtime, offered to this process alone, and
/// is destroyed on the thread that made it. Elsewhere it is in the library's own registry, which is
/// thread-safe.
class RAVO_API RegisteredClass {
 public:
  /// Offers a class. `factory` makes one object for each creation; if it returns null or throws, the
  /// creation fails like that of a server that does not start.
  ///
  /// Throws `ComponentError` if the platform refuses the offer. A class that is offered already is refused
  /// except on Windows, which takes several offers.
  RegisteredClass(const Guid& class_id, ComponentFactory factory);
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;
  /// Revokes the offer. Existing objects live on.
  ~RegisteredClass();

 private:
  const platform::ComponentCalls& runtime_;
  std::uint32_t registration_ = 0;
};

}  // namespace ravo
