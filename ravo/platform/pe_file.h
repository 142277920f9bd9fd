#pragma once

#include <ravo/runtime/byte_stream.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace ravo::platform {

/// The bytes of the version resource of a PE32 or PE32+ image (its first name, its first language). Reads the
/// headers, the section table and the resource directories alone, never the whole file. No value where the
/// file is no such image, has no such resource, is damaged on the way to it, or where the resource is empty
/// or larger than 1 MiB. What the stream raises passes through.
[[nodiscard]] std::optional<std::vector<std::byte>> ReadVersionResource(ByteStream& file);

}  // namespace ravo::platform
