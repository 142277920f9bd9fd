#include <ravo/catalogue/module_tables.h>
#include <ravo/catalogue/table_catalogue.h>

#define RAVO_TABLE_MODULE(tables, module, get_description)            \
  std::u16string ravo::module::get_description(std::int32_t id) {     \
    return std::u16string(TableDescription(TableModule::tables, id)); \
  }
#include <ravo/catalogue/table_modules.inc>
#undef RAVO_TABLE_MODULE

#define RAVO_NO_CACHED_FIELDS(module, get_cached_fields) \
  std::u16string ravo::module::get_cached_fields(std::u16string_view /*table*/) { return {}; }
#include <ravo/catalogue/no_cached_fields.inc>
