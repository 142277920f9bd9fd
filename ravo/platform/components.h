#pragma once

#include <ravo/platform/chapter.h>
#include <ravo/runtime/component_factory.h>
#include <ravo/runtime/error.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::platform {

/// The component runtime's answer to a request for an object: the object, or the code of a failure.
struct ComponentAnswer {
  ResultCode code = result_code::kClassNotRegistered;  ///< `kOk` beside an object
  ComponentPtr<IUnknown> instance;                     ///< null beside a failure
};

/// The component runtime. On Windows the calling thread has initialised it for itself.
class ComponentCalls : public Chapter {
 public:
  /// Creates an object of a class on this computer.
  [[nodiscard]] virtual ComponentAnswer CreateComponent(const Guid& class_id) const = 0;
  /// Creates an object of a class on the computer of that name.
  [[nodiscard]] virtual ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                              std::u16string_view computer) const = 0;
  /// Offers a class to this process and returns the platform's code.
  ///
  /// `registration` receives the number that revokes the offer.
  [[nodiscard]] virtual ResultCode OfferComponent(const Guid& class_id, ComponentFactory factory,
                                                  std::uint32_t& registration) const = 0;
  /// Revokes the offer of that number.
  virtual void RevokeComponent(std::uint32_t registration) const = 0;
  /// Returns the platform's message for one of its codes.
  [[nodiscard]] virtual std::u16string ComponentErrorText(ResultCode code) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const ComponentCalls& Components() noexcept;

}  // namespace ravo::platform
