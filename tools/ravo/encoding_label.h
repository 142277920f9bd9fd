#pragma once

#include <ravo/codec/encoding_label.h>

namespace tool {

using ravo::codec::ShortLabel;

}  // namespace tool
