#include <ravo/platform/win32/class_object.h>

namespace ravo::platform {

ResultCode ClassObject::CreateInstance(IUnknown* outer, const Guid& interface_id, void** object) noexcept {
  if (!object) return result_code::kNullPointer;
  *object = nullptr;
  if (outer) return result_code::kNoAggregation;
  ComponentPtr<IUnknown> instance;
  const ResultCode code = MakeInstance(factory_, instance);
  return Failed(code) ? code : instance->QueryInterface(interface_id, object);
}

}  // namespace ravo::platform
