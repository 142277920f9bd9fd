#include <ravo/catalogue/modules/dcf_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoDCFConstants {

std::u16string GetDCFTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::DCF, id));
}

std::u16string GetDCFTableCachedFields(std::u16string_view /*table*/) { return {}; }

}  // namespace ravo::RavoDCFConstants
