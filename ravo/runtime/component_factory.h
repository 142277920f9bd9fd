#pragma once

#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>

#include <functional>

namespace ravo {

/// Makes one instance of a class; null, or an exception, where it cannot. Called on any thread, on several at
/// once too.
using ComponentFactory = std::function<ComponentPtr<IUnknown>()>;

/// What `factory` makes, in the terms of the component runtime, which knows codes and no exceptions: the code
/// of a `ComponentError`, and that of a server that fails to start for null and for all else that is raised.
[[nodiscard]] ResultCode MakeInstance(const ComponentFactory& factory,
                                      ComponentPtr<IUnknown>& instance) noexcept;

}  // namespace ravo
