#pragma once

#include <ravo/runtime/byte_stream.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ravo::platform {
class KeptInput;
}  // namespace ravo::platform

namespace ravo {

/// The mode in which a file is opened. Other processes may read a file open for reading; a file open for
/// writing is this process's own on systems that have such locks.
enum class FileMode : std::uint8_t {
  Read,       ///< existing file, for reading
  ReadWrite,  ///< existing file, for both
  Create,     ///< new or emptied file, for both
};

/// A named file as a byte stream with 64-bit positions. The name is UTF-16; "\" and "/" both separate
/// folders.
///
/// A file that cannot seek (a pipe, a terminal) is read like one that can: the bytes read stay in memory.
/// Opening and reading it wait for its writer, and `Size` waits for its end.
class RAVO_API FileStream final : public ByteStream {
 public:
  /// Opens a file. Throws `StreamError` (open) with the name and the system's message if that fails.
  FileStream(std::u16string_view name, FileMode mode);
  ~FileStream() override;

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override;
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override;
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override;
  [[nodiscard]] std::int64_t Size() const override;

 private:
  explicit FileStream(std::intptr_t handle) noexcept;

  // A file descriptor or a Windows handle.
  std::intptr_t handle_;
  std::int64_t position_ = 0;
  // Null for a file that can seek.
  std::unique_ptr<platform::KeptInput> kept_;
};

}  // namespace ravo
