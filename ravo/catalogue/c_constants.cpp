#include <ravo/catalogue/c_constants.h>
#include <ravo/catalogue/class_identifiers.h>
#include <ravo/frame/module_record.h>
#include <ravo/runtime/utf16_units.h>

#include <bit>

#define RAVO_CLASS_IDENTIFIER(module, name, identifier, what) \
  constinit const RavoGuid name = std::bit_cast<RavoGuid>(ravo::module::name);
#include <ravo/catalogue/class_identifiers.inc>
#undef RAVO_CLASS_IDENTIFIER

// The texts first, then the constants that refer to them.
namespace {
#define RAVO_STRING(name, id, text) constexpr auto kTextOf##name = ravo::Utf16Units(u##text);
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING
}  // namespace

#define RAVO_STRING(name, id, text) \
  constinit const RavoResourceString name = {&ravo::frame::library_module.Instance, id, kTextOf##name.data()};
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING
