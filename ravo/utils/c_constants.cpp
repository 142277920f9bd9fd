#include <ravo/frame/module_record.h>
#include <ravo/runtime/utf16_units.h>
#include <ravo/utils/c_constants.h>

// The texts first, then the constants that refer to them.
namespace {
#define RAVO_STRING(name, id, text) constexpr auto kTextOf##name = ravo::Utf16Units(u##text);
#include <ravo/utils/messages.inc>
#undef RAVO_STRING
}  // namespace

#define RAVO_STRING(name, id, text) \
  constinit const RavoResourceString name = {&ravo::frame::library_module.Instance, id, kTextOf##name.data()};
#include <ravo/utils/messages.inc>
#undef RAVO_STRING
