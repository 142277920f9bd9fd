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

/// A class that this process itself offers, for as long as this object lives: the creators find it under its
/// identifier. On Windows it is a class object of the platform's component runtime, offered to this process
/// alone, and goes on the thread on which it came; elsewhere it stands in the library's own registry, which
/// all threads may use at once.
class RAVO_API RegisteredClass {
 public:
  /// `factory` makes one object for each creation; where it answers null or raises, the creation fails as
  /// that of a server that does not start. Raises `ComponentError` where the platform refuses the offer; a
  /// class that is offered already is refused everywhere but on Windows, which takes several offers.
  RegisteredClass(const Guid& class_id, ComponentFactory factory);
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;
  /// Objects that exist live on.
  ~RegisteredClass();

 private:
  const platform::ComponentCalls& runtime_;
  std::uint32_t registration_ = 0;
};

}  // namespace ravo
