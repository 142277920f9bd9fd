#include <ravo/catalogue/modules/ucetnictvi_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoUcetnictviConstants {

std::u16string GetUcetnictviTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Ucetnictvi, id));
}

}  // namespace ravo::RavoUcetnictviConstants
