#pragma once

#include <ravo/convert/utf8_reader.h>

namespace tool {

using ravo::convert::FirstCharacter;
using ravo::convert::Utf8Character;
using ravo::convert::ValidUtf8Length;

}  // namespace tool
