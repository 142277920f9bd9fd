#pragma once

#include <ravo/runtime/byte_stream.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace ravo::platform {

/// Returns the version resource of a PE32 or PE32+ image (its first name, its first language); no value if
/// the file is no such image, has no such resource, is damaged on the way to it, or if the resource is empty
/// or larger than 1 MiB.
///
/// Reads the headers, the section table and the resource directories alone. Errors of the stream pass
/// through.
[[nodiscard]] std::optional<std::vector<std::byte>> ReadVersionResource(ByteStream& file);

}  // namespace ravo::platform
