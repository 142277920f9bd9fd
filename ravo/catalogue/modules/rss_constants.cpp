#include <ravo/catalogue/modules/rss_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoRSSConstants {

std::u16string GetRSSTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::RSS, id));
}

std::u16string GetRSSTableCachedFields(std::u16string_view /*table*/) { return {}; }

}  // namespace ravo::RavoRSSConstants
