#pragma once

#include "ravo.h"
#include <ravo/codec/encoding.h>

namespace ravo::c {

/// The number of an encoding, which is its index.
[[nodiscard]] inline ravo_encoding NumberOf(const codec::Encoding& row) noexcept {
  return static_cast<ravo_encoding>(&row - codec::Encodings().data());
}

}  // namespace ravo::c
