#include <ravo/catalogue/modules/mzda_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoMzdaConstants {

std::u16string GetMzdaTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Mzda, id));
}

}  // namespace ravo::RavoMzdaConstants
