#include "json_text.h"

namespace tool {

std::string JsonText(const Json& value) {
  return value.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string JsonLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace tool
