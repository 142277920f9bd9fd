#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>

namespace ravo {

void RaiseInterfaceNotSupported(ResultCode code) { throw ComponentError(code, u"Interface not supported"); }

}  // namespace ravo
