#include <ravo/catalogue/modules/sklad_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoSkladConstants {

std::u16string GetSkladTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Sklad, id));
}

}  // namespace ravo::RavoSkladConstants
