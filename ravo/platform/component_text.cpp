#include <ravo/platform/component_text.h>
#include <ravo/runtime/text.h>

#include <cstdint>
#include <string_view>

namespace ravo::platform {
namespace {

struct ErrorText {
  ResultCode code;
  std::u16string_view text;
};

constexpr ErrorText kErrorTexts[] = {
    {result_code::kNotImplemented, u"Not implemented"},
    {result_code::kNoInterface, u"Interface not supported"},
    {result_code::kNoAggregation, u"Class does not support aggregation"},
    {result_code::kClassNotRegistered, u"Class not registered"},
    {result_code::kAlreadyRegistered, u"Class is already registered"},
    {result_code::kOutOfMemory, u"Not enough memory"},
    {result_code::kServerUnavailable, u"The computer cannot be reached"},
    {result_code::kServerFailed, u"The server of the class failed to start"},
};

}  // namespace

std::u16string ComponentText(ResultCode code) {
  for (const ErrorText& row : kErrorTexts) {
    if (row.code == code) return std::u16string(row.text);
  }
  return u"Component error " + ToHex(static_cast<std::uint32_t>(code), 8);
}

}  // namespace ravo::platform
