#include <ravo/catalogue/c_constants.h>
#include <ravo/catalogue/class_identifiers.h>

#include <bit>

#define RAVO_CLASS_IDENTIFIER(module, name, identifier, what) \
  constinit const RavoGuid name = std::bit_cast<RavoGuid>(ravo::module::name);
#include <ravo/catalogue/class_identifiers.inc>
#undef RAVO_CLASS_IDENTIFIER

#define RAVO_STRINGS "ravo/catalogue/captions.inc"
#include <ravo/frame/c_strings.inc>
