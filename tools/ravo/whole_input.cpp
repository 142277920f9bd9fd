#include "whole_input.h"

#include "console.h"
#include "system_reason.h"
#include "text.h"
#include "text_file.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <span>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace tool {
namespace {

constexpr std::size_t kReadAtOnce = std::size_t{1} << 16;

template <class Read>
std::string AllOf(Read read, std::size_t expected = 0) {
  std::string text;
  text.reserve(expected);
  std::vector<char> piece(kReadAtOnce);
  while (const std::size_t count = read(std::span(piece))) text.append(piece.data(), count);
  return text;
}

std::string WholeInput() {
  return AllOf([](std::span<char> to) { return ReadInput(std::as_writable_bytes(to)); });
}

[[noreturn]] void Fail(std::errc reason) { throw std::system_error(std::make_error_code(reason)); }

std::string WholeFileOf(const std::filesystem::path& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) Fail(std::errc::is_a_directory);
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file) Fail(static_cast<std::errc>(errno));
  const auto read = [&](std::span<char> to) {
    file.read(to.data(), static_cast<std::streamsize>(to.size()));
    return static_cast<std::size_t>(file.gcount());
  };
  const auto size = std::filesystem::file_size(path, error);
  std::string text = AllOf(read, error ? 0 : static_cast<std::size_t>(size));
  if (file.bad()) Fail(std::errc::io_error);
  return text;
}

}  // namespace

std::optional<std::string> ReadWhole(const std::string& name, std::string* reason) {
  try {
    return name == kInputName ? WholeInput() : WholeFileOf(PathOf(name));
  } catch (const std::system_error& error) {
    if (reason != nullptr) *reason = Text("cannot be read: {0}", {SystemReason(error.code())});
  } catch (const std::runtime_error&) {
    if (reason != nullptr) *reason = Text("cannot be read");
  }
  return {};
}

}  // namespace tool
