#pragma once

#include <ravo/runtime/guid.h>

/// The class identifiers that the modules export, each in the namespace of its module.
namespace ravo {

#define RAVO_CLASS_IDENTIFIER(module, name, identifier, what) \
  namespace module {                                          \
  /** Class identifier of #what: #identifier. */              \
  inline constexpr Guid name(identifier);                     \
  }
#include <ravo/catalogue/class_identifiers.inc>
#undef RAVO_CLASS_IDENTIFIER

}  // namespace ravo
