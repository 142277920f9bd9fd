#include "table_input.h"

#include "console.h"
#include "file_reason.h"
#include "text.h"
#include "text_file.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace tool {

TableInput::TableInput(const std::string& name) : is_standard_(name == kInputName) {
  if (is_standard_) return;
  const std::filesystem::path path = PathOf(name);
  std::error_code error;
  file_.open(path, std::ios::binary);
  if (!file_ || std::filesystem::is_directory(path, error))
    throw std::runtime_error(Text("cannot be read: {0}", {WhyUnreadable(name)}));
  const auto size = std::filesystem::file_size(path, error);
  size_ = error ? 0 : static_cast<std::int64_t>(size);
}

std::size_t TableInput::Read(std::span<char> to) {
  try {
    if (is_standard_) return ReadInput(std::as_writable_bytes(to));
    file_.read(to.data(), static_cast<std::streamsize>(to.size()));
    has_failed_ = file_.bad();
    return has_failed_ ? 0 : static_cast<std::size_t>(file_.gcount());
  } catch (const std::runtime_error&) {
    has_failed_ = true;
    return 0;
  }
}

}  // namespace tool
