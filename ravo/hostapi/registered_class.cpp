#include <ravo/hostapi/registered_class.h>
#include <ravo/platform/components.h>
#include <ravo/runtime/error.h>

#include <utility>

namespace ravo {

RegisteredClass::RegisteredClass(const Guid& class_id, ComponentFactory factory)
    : runtime_(platform::Components()) {
  const ResultCode code = runtime_.OfferComponent(class_id, std::move(factory), registration_);
  // Untested: the platform refuses a class only if memory runs out.
  if (Failed(code)) throw ComponentError(code, runtime_.ComponentErrorText(code));
}

RegisteredClass::~RegisteredClass() { runtime_.RevokeComponent(registration_); }

}  // namespace ravo
