#include "support.h"
#include <ravo/frame/modules.h>

using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::IsKnown;
namespace frame = ravo::frame;

size_t ravo_suite_module_count(void) { return frame::kModules.size(); }

ravo_status ravo_suite_module_at(size_t index, ravo_suite_module* module, ravo_error* error) {
  if (!IsKnown(module)) return FailStruct(error);
  if (index >= frame::kModules.size()) return FailUnknown(error, "there are fewer modules");
  const frame::ModuleRow& row = frame::kModules[index];
  const auto order = std::ranges::find(frame::kModuleOrder, index) - frame::kModuleOrder.begin();
  Fill(*module,
       {0, row.name, row.uses.data(), static_cast<int32_t>(order), (row.flags & RAVO_MODULE_MAIN) != 0});
  return RAVO_OK;
}
