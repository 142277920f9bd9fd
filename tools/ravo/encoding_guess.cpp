#include "encoding_guess.h"

#include "encoding_label.h"
#include "text.h"

#include <utility>

namespace tool {
namespace {

using ravo::convert::Detection;
using ravo::convert::Evidence;

std::string_view LabelOf(const Detection& detection, std::size_t candidate) {
  return ShortLabel(detection.candidates[candidate]->label);
}

std::string WhyNotSure(const Detection& detection) {
  if (detection.evidence == Evidence::Binary) return Text("it has zero bytes and may not be text");
  if (detection.evidence == Evidence::Foreign) return Text("it does not look like Czech in any encoding");
  const auto [first, second] = std::pair(LabelOf(detection, 0), LabelOf(detection, 1));
  return detection.evidence == Evidence::Alike ? Text("{0} and {1} read it alike", {first, second})
                                               : Text("{0} and {1} are both possible", {first, second});
}

std::string Why(const Detection& detection) {
  switch (detection.evidence) {
    case Evidence::Mark:
      return Text("it begins with a byte-order mark");
    case Evidence::Zeros:
      return Text("it has the zero bytes of {0}", {LabelOf(detection, 0)});
    case Evidence::Ascii:
      return Text("it has ASCII characters only");
    case Evidence::Utf8:
      return Text("its bytes are valid UTF-8");
    case Evidence::Czech:
      return Text("it looks most like Czech in {0}", {LabelOf(detection, 0)});
    default:
      return WhyNotSure(detection);
  }
}

}  // namespace

EncodingGuess GuessEncoding(std::string_view first_bytes) {
  const Detection detection = ravo::convert::DetectEncoding(first_bytes);
  return {std::string(detection.Encoding().name), detection.IsSure(), Why(detection)};
}

}  // namespace tool
