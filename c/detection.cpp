#include "encoding_number.h"
#include "support.h"
#include <ravo/convert/detection.h>

using ravo::c::BytesIn;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsKnown;
using ravo::c::NumberOf;
using ravo::c::ReadBytes;
namespace convert = ravo::convert;

namespace {

// Detects, and returns what `tell` does with the answer.
template <class Tell>
ravo_status Detected(const BytesIn& input, uint32_t flags, ravo_error* error, Tell tell) {
  if (input.status != RAVO_OK) return input.status;
  if (flags != RAVO_DETECT_PLAIN && flags != RAVO_DETECT_MAC)
    return FailArgument(error, "the flags are unknown");
  const auto mac_texts = flags == RAVO_DETECT_MAC ? convert::MacTexts::Possible : convert::MacTexts::Never;
  return Guarded(error, [&] { return tell(convert::DetectEncoding(input.bytes, mac_texts)); });
}

}  // namespace

ravo_status ravo_encoding_detect(const void* bytes, size_t bytes_length, uint32_t flags,
                                 ravo_detection* detection, ravo_error* error) {
  if (!IsKnown(detection)) return FailStruct(error);
  return Detected(ReadBytes(bytes, bytes_length, error), flags, error, [&](const convert::Detection& found) {
    Fill(*detection, {0, found.candidates.size(), NumberOf(found.Encoding()),
                      static_cast<ravo_evidence>(found.evidence), found.IsSure() ? 1 : 0});
    return RAVO_OK;
  });
}

ravo_status ravo_encoding_candidate_at(const void* bytes, size_t bytes_length, uint32_t flags, size_t index,
                                       ravo_encoding* encoding, ravo_error* error) {
  if (encoding == nullptr) return FailNullResult(error);
  return Detected(ReadBytes(bytes, bytes_length, error), flags, error,
                  [&](const convert::Detection& found) -> ravo_status {
                    if (index >= found.candidates.size())
                      return FailUnknown(error, "there is no such candidate");
                    *encoding = NumberOf(*found.candidates[index]);
                    return RAVO_OK;
                  });
}
