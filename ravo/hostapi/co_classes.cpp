#include <ravo/hostapi/co_classes.h>
#include <ravo/platform/components.h>
#include <ravo/runtime/error.h>

namespace ravo {
namespace {

// `answer` releases the instance's own reference, also if the query throws.
template <class Interface>
ComponentPtr<Interface> DefaultInterface(const platform::ComponentAnswer& answer) {
  if (!answer.instance) {
    const ResultCode code = Failed(answer.code) ? answer.code : result_code::kServerFailed;
    throw ComponentError(code, platform::Components().ComponentErrorText(code));
  }
  return answer.instance.Query<Interface>();
}

}  // namespace

#define RAVO_HOST_CLASS(library, name, returned, identifier)                                 \
  ComponentPtr<library##_TLB::returned> library##_TLB::Co##name::Create() {                  \
    return DefaultInterface<returned>(platform::Components().CreateComponent(CLASS_##name)); \
  }                                                                                          \
  ComponentPtr<library##_TLB::returned> library##_TLB::Co##name::CreateRemote(               \
      std::u16string_view machine_name) {                                                    \
    return DefaultInterface<returned>(                                                       \
        platform::Components().CreateRemoteComponent(CLASS_##name, machine_name));           \
  }

#include <ravo/hostapi/interfaces.inc>

}  // namespace ravo
