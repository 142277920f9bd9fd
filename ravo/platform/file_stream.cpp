#include <ravo/platform/file_stream.h>
#include <ravo/platform/kept_input.h>
#include <ravo/platform/stream_calls.h>
#include <ravo/runtime/error.h>

namespace ravo {

FileStream::FileStream(std::u16string_view name, FileMode mode)
    : FileStream(platform::OpenStream(name, mode)) {
  if (!platform::CanSeek(handle_)) kept_ = std::make_unique<platform::KeptInput>(handle_);
}

FileStream::FileStream(std::intptr_t handle) noexcept : handle_(handle) {}

FileStream::~FileStream() { platform::CloseStream(handle_); }

std::size_t FileStream::Read(std::span<std::byte> to) {
  const std::size_t count = kept_ ? kept_->Read(position_, to) : platform::ReadAt(handle_, position_, to);
  position_ += static_cast<std::int64_t>(count);
  return count;
}

std::size_t FileStream::Write(std::span<const std::byte> from) {
  const std::size_t count = platform::WriteAt(handle_, position_, from);
  position_ += static_cast<std::int64_t>(count);
  return count;
}

void FileStream::SetPosition(std::int64_t position) {
  if (position < 0) throw RangeError(u"Range check error");
  position_ = position;
}

std::int64_t FileStream::Size() const { return kept_ ? kept_->Size() : platform::StreamSize(handle_); }

}  // namespace ravo
