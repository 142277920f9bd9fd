#pragma once

#include <ravo/hostapi/interfaces.h>
#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string_view>

/// The factories of the classes that a module creates itself, each in the namespace of its type library: for
/// the class identifier `CLASS_RavoX` there is the factory `CoRavoX`.
namespace ravo {

#define RAVO_HOST_CLASS(library, name, returned, identifier)                                                \
  namespace library##_TLB {                                                                                 \
    /** The factory of the class #name. */                                                                  \
    class RAVO_API Co##name {                                                                               \
     public:                                                                                                \
      Co##name() = delete;                                                                                  \
      /** A new object of this class on this computer. Raises `ComponentError` with the platform's code and \
       * text where the class is not registered or its server does not start, and one that says that the    \
       * interface is not supported where the object lacks it. The calling thread has initialised the       \
       * platform's component runtime. */                                                                   \
      [[nodiscard]] static ComponentPtr<returned> Create();                                                 \
      /** As `Create`, on the computer of that name; raises also where it cannot be reached. */             \
      [[nodiscard]] static ComponentPtr<returned> CreateRemote(std::u16string_view machine_name);           \
    };                                                                                                      \
  }

#include <ravo/hostapi/interfaces.inc>

}  // namespace ravo
