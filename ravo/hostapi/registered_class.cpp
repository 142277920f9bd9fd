#include <ravo/hostapi/registered_class.h>
#include <ravo/platform/machine.h>
#include <ravo/runtime/error.h>

#include <utility>

namespace ravo {

RegisteredClass::RegisteredClass(const Guid& class_id, ComponentFactory factory)
    : machine_(platform::CurrentMachine()) {
  const ResultCode code = machine_.OfferComponent(class_id, std::move(factory), registration_);
  // Untested: the platform refuses a class only if memory runs out.
  if (Failed(code)) throw ComponentError(code, machine_.ComponentErrorText(code));
}

RegisteredClass::~RegisteredClass() { machine_.RevokeComponent(registration_); }

}  // namespace ravo
