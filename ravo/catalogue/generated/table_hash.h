#pragma once

// Written by tools/generate/table_hash.py from 263 identifiers; not to be edited by hand.

#include <cstdint>

namespace ravo::table_index {

inline constexpr std::uint32_t kTableHashMultiplier = 0x9E38F615;

}  // namespace ravo::table_index
