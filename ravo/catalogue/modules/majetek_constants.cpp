#include <ravo/catalogue/modules/majetek_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoMajetekConstants {

std::u16string GetMajetekTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Majetek, id));
}

}  // namespace ravo::RavoMajetekConstants
