#include <ravo/runtime/component_factory.h>
#include <ravo/runtime/error.h>

#include <new>

namespace ravo {

ResultCode MakeInstance(const ComponentFactory& factory, ComponentPtr<IUnknown>& instance) noexcept {
  try {
    if (factory) instance = factory();
    return instance ? result_code::kOk : result_code::kServerFailed;
  } catch (const ComponentError& error) {
    return Failed(error.Code()) ? error.Code() : result_code::kServerFailed;
  } catch (const std::bad_alloc&) {
    return result_code::kOutOfMemory;
  } catch (...) {
    return result_code::kServerFailed;
  }
}

}  // namespace ravo
