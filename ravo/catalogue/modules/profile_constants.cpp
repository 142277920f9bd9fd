#include <ravo/catalogue/modules/profile_constants.h>
#include <ravo/catalogue/table_catalogue.h>

namespace ravo::RavoProfileConstants {

std::u16string GetProfilTableDescription(std::int32_t id) {
  return std::u16string(TableDescription(TableModule::Profil, id));
}

}  // namespace ravo::RavoProfileConstants
