#include <ravo/catalogue/modules/box_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoBoxConstants {

std::u16string GetBoxTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Box, id));
}

std::u16string GetBoxTableCachedFields(std::u16string_view /*table*/) { return {}; }

}  // namespace ravo::RavoBoxConstants
