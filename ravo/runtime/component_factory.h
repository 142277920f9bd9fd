#pragma once

#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>

#include <functional>

namespace ravo {

/// A function that returns a new instance of a class; it returns null or throws if it fails. It may be called
/// on several threads at once.
using ComponentFactory = std::function<ComponentPtr<IUnknown>()>;

/// Stores what `factory` returns in `instance` and returns a result code, because exceptions do not cross the
/// component runtime: the code of a thrown `ComponentError`, else `kServerFailed` for null and for any other
/// exception.
[[nodiscard]] ResultCode MakeInstance(const ComponentFactory& factory,
                                      ComponentPtr<IUnknown>& instance) noexcept;

}  // namespace ravo
