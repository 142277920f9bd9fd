#include "whole_input.h"

#include "console.h"
#include "text_file.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace tool {
namespace {

constexpr std::size_t kReadAtOnce = std::size_t{1} << 16;

template <class Read>
std::string AllOf(Read read) {
  std::string text;
  std::vector<char> piece(kReadAtOnce);
  while (const std::size_t count = read(std::span(piece))) text.append(piece.data(), count);
  return text;
}

std::optional<std::string> WholeInput() {
  try {
    return AllOf([](std::span<char> to) { return ReadInput(std::as_writable_bytes(to)); });
  } catch (const std::runtime_error&) {
    return {};
  }
}

}  // namespace

std::optional<std::string> ReadWhole(const std::string& name) {
  if (name == kInputName) return WholeInput();
  const std::filesystem::path path = PathOf(name);
  std::error_code error;
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path, error)) return {};
  std::string text = AllOf([&](std::span<char> to) {
    file.read(to.data(), static_cast<std::streamsize>(to.size()));
    return static_cast<std::size_t>(file.gcount());
  });
  return file.bad() ? std::nullopt : std::optional(std::move(text));
}

}  // namespace tool
