#pragma once

#include <ravo/platform/file_handle.h>
#include <ravo/platform/file_stream.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The system calls of `FileStream`. They throw `StreamError` with the system's message if the system fails.
namespace ravo::platform {

[[nodiscard]] FileHandle OpenStream(std::u16string_view name, FileMode mode);
void CloseStream(FileHandle file) noexcept;

/// Tells whether the file is read and written at any position; false for a pipe or a terminal.
[[nodiscard]] bool CanSeek(FileHandle file) noexcept;

/// Reads at most `to.size()` bytes at `position`; 0 at the end.
[[nodiscard]] std::size_t ReadAt(FileHandle file, std::int64_t position, std::span<std::byte> to);
/// Reads on in a file that cannot seek, as soon as there are bytes; 0 at the end.
[[nodiscard]] std::size_t ReadNext(FileHandle file, std::span<std::byte> to);
/// Writes at most `from.size()` bytes at `position`; 0 if the system fails.
[[nodiscard]] std::size_t WriteAt(FileHandle file, std::int64_t position, std::span<const std::byte> from);

/// Returns the size in bytes of a file that can seek.
[[nodiscard]] std::int64_t StreamSize(FileHandle file);

}  // namespace ravo::platform
