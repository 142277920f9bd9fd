#pragma once

#include <ravo/platform/files.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ravo::test {

/// A file chapter whose calls fail on demand, for failures that no real system gives on demand. It has no
/// folders, and one file under any name.
class FakeFileSystem final : public platform::FileCalls {
 public:
  bool opens = true;
  bool closes = true;
  bool dates = true;
  /// The most bytes that one call moves.
  std::size_t portion = 1 << 20;
  /// The number of bytes that can be written or read before calls fail.
  std::size_t room = 1 << 20;
  /// The stated size of the file, and its content.
  std::optional<std::int64_t> size = 0;
  std::string content;
  std::optional<std::uint32_t> attributes;

  /// A record of the calls: the number of closed files, the written bytes, the opened names and the days
  /// that were set.
  mutable int closed = 0;
  mutable std::string written;
  mutable std::vector<std::u16string> opened;
  mutable std::vector<std::uint32_t> days;

  [[nodiscard]] std::optional<std::uint32_t> Attributes(std::u16string_view) const override {
    return attributes;
  }
  [[nodiscard]] std::u16string CurrentFolder() const override { return {}; }
  bool SetCurrentFolder(std::u16string_view) const override { return false; }
  bool CreateFolder(std::u16string_view) const override { return false; }
  bool DeleteFolder(std::u16string_view, platform::FolderPart) const override { return false; }
  bool RemoveFile(std::u16string_view) const override { return false; }

  [[nodiscard]] FileHandle Open(std::u16string_view name, platform::FilePurpose) const override {
    opened.emplace_back(name);
    return opens ? 1 : kNoFile;
  }
  bool Close(FileHandle) const override {
    ++closed;
    return closes;
  }
  [[nodiscard]] std::optional<std::int64_t> SizeOf(FileHandle) const override { return size; }
  [[nodiscard]] std::optional<std::size_t> Read(FileHandle, std::span<std::byte> to) const override {
    if (read_ >= room) return std::nullopt;
    const std::size_t count = std::min({to.size(), portion, content.size() - read_, room - read_});
    std::ranges::copy(std::as_bytes(std::span(content)).subspan(read_, count), to.begin());
    read_ += count;
    return count;
  }
  [[nodiscard]] std::optional<std::size_t> Write(FileHandle, std::span<const std::byte> from) const override {
    if (written.size() >= room) return std::nullopt;
    const std::size_t count = std::min({from.size(), portion, room - written.size()});
    written.append(reinterpret_cast<const char*>(from.data()), count);
    return count;
  }
  bool SetTimes(FileHandle, std::uint16_t year, std::uint16_t month, std::uint16_t day) const override {
    days.push_back(year * 10000u + month * 100u + day);
    return dates;
  }

 private:
  mutable std::size_t read_ = 0;
};

}  // namespace ravo::test
