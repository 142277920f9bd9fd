#pragma once

#include <ravo/runtime/byte_stream.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo {

/// How a file is opened. Files open for reading may be read by others; files open for writing are this
/// process's own where the system has such locks.
enum class FileMode : std::uint8_t {
  Read,       ///< existing file, for reading
  ReadWrite,  ///< existing file, for both
  Create,     ///< new or emptied file, for both
};

/// A named file as a byte stream, 64-bit positions. The name is UTF-16; "\" and "/" both separate folders.
class RAVO_API FileStream final : public ByteStream {
 public:
  /// Raises `StreamError` (open) with the name and the system's own words where the file cannot be opened.
  FileStream(std::u16string_view name, FileMode mode);
  ~FileStream() override;

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override;
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override;
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override;
  [[nodiscard]] std::int64_t Size() const override;

 private:
  // A file descriptor or a Windows handle.
  std::intptr_t handle_;
  std::int64_t position_ = 0;
};

}  // namespace ravo
