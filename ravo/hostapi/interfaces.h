#pragma once

#include <ravo/runtime/component.h>
#include <ravo/runtime/dispatch.h>
#include <ravo/runtime/guid.h>

/// The interfaces of the host's object model, each in the namespace of its type library.
///
/// The library fixes an interface's identity, its base, `IUnknown` (custom) or `IDispatch` (dual), and the
/// number of operations that it adds. The operations themselves are the host's: a module that knows them
/// adds them with `RAVO_OPERATIONS` (`ravo/hostapi/operations.h`) and uses the result instead of the
/// declared interface.
///
/// For each interface `IRavoX` there is the constant `IID_IRavoX` and a twin `IRavoXDisp`, the view of a
/// late-binding client. Both have the same identifier, base and number of operations; the twin of a dual
/// interface is called through `Invoke` alone.
namespace ravo {

// A base class cannot be in parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define RAVO_TYPE_LIBRARY(library, identifier)                   \
  namespace library##_TLB {                                      \
    /** Identifier of the type library #library: #identifier. */ \
    inline constexpr Guid LIBID_##library = identifier;          \
  }

#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations)                  \
  namespace library##_TLB {                                                               \
    /** Identifier of `#name`: #identifier. */                                            \
    inline constexpr Guid IID_##name = identifier;                                        \
    /** An interface of the host below `#base` with #operations operations of its own. */ \
    struct name : base {                                                                  \
      /** What `QueryInterface` finds it by. */                                           \
      static constexpr Guid kInterfaceId = IID_##name;                                    \
      /** The operations that it adds to `#base`. */                                      \
      static constexpr int kOwnOperations = operations;                                   \
                                                                                          \
     protected:                                                                           \
      ~name() = default;                                                                  \
    };                                                                                    \
    /** `#name` as a late-binding client sees it. */                                      \
    struct name##Disp : base {                                                            \
      /** That of `#name`. */                                                             \
      static constexpr Guid kInterfaceId = IID_##name;                                    \
      /** That of `#name`. */                                                             \
      static constexpr int kOwnOperations = operations;                                   \
                                                                                          \
     protected:                                                                           \
      ~name##Disp() = default;                                                            \
    };                                                                                    \
  }

#define RAVO_HOST_CLASS(library, name, returned, identifier) \
  namespace library##_TLB {                                  \
    /** Identifier of the class #name: #identifier. */       \
    inline constexpr Guid CLASS_##name = identifier;         \
  }

#include <ravo/hostapi/interfaces.inc>
// NOLINTEND(bugprone-macro-parentheses)

}  // namespace ravo
