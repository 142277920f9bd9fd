#include <ravo/catalogue/modules/kancelar_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoKancelarConstants {

std::u16string GetKancelarTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Kancelar, id));
}

}  // namespace ravo::RavoKancelarConstants
