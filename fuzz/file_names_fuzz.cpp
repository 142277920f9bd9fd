#include <ravo/DIUtils.h>

#include <cstdlib>
#include <cstring>

namespace {

namespace utils = ravo::DIUtils;

void Require(bool holds) {
  if (!holds) std::abort();
}

// The parts compose the whole name, each by its own rule.
void CheckParts(std::u16string_view name) {
  const std::u16string path = utils::ExtractFilePathW(name);
  const std::u16string file = utils::ExtractFileNameW(name);
  const std::u16string extension = utils::ExtractFileExtW(name);
  const std::u16string drive = utils::ExtractFileDriveW(name);
  Require(path + file == name);
  Require(file.find_first_of(u"\\:") == file.npos);
  Require(path.empty() || path.ends_with(u'\\') || path.ends_with(u':'));
  Require(file.ends_with(extension) && extension.rfind(u'.') == (extension.empty() ? extension.npos : 0));
  Require(extension.empty() == (file.find(u'.') == file.npos));
  Require(name.starts_with(drive));
  Require(utils::ExtractFileDriveW(drive) == drive);
  Require(utils::ChangeFileExtW(name, extension) == name);
  Require(utils::ExtractFileExtW(utils::ChangeFileExtW(name, u".bak")) == u".bak");
}

void CheckDelimiters(std::u16string_view name) {
  std::u16string with(name);
  utils::IncludeTrailingPathDelimiterByRefW(with);
  const std::u16string without = utils::ExcludeTrailingPathDelimiterW(with);
  Require(utils::IsPathDelimiterW(with, with.size()));
  Require(without + u"\\" == with);
  Require(name == with || name == without);
}

// The 8-bit functions return the same for the same characters.
void CheckNarrow(std::string_view name) {
  const std::u16string wide(name.begin(), name.end());
  const auto same = [](const std::string& left, const std::u16string& right) {
    Require(std::u16string(left.begin(), left.end()) == right);
  };
  same(utils::ExtractFilePathA(name), utils::ExtractFilePathW(wide));
  same(utils::ExtractFileNameA(name), utils::ExtractFileNameW(wide));
  same(utils::ExtractFileExtA(name), utils::ExtractFileExtW(wide));
  same(utils::ExtractFileDriveA(name), utils::ExtractFileDriveW(wide));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::u16string units(size / 2, u'\0');
  if (!units.empty()) std::memcpy(units.data(), data, 2 * units.size());
  CheckParts(units);
  CheckDelimiters(units);
  const std::u16string letters(bytes.begin(), bytes.end());
  CheckParts(letters);
  CheckDelimiters(letters);
  CheckNarrow(std::string(bytes));
  return 0;
}
