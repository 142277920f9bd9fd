#include <ravo/utils/file_name_parts.h>
#include <ravo/utils/file_names.h>

namespace ravo::DIUtils {
namespace {

template <class Char>
std::basic_string<Char> WithExtension(std::basic_string_view<Char> name,
                                      std::basic_string_view<Char> extension) {
  std::basic_string<Char> result(name.substr(0, name.size() - utils::ExtensionOf(name).size()));
  return result.append(extension);
}

template <class Char>
void IncludeDelimiter(std::basic_string<Char>& name) {
  if (!name.ends_with(Char{'\\'})) name.push_back(Char{'\\'});
}

}  // namespace

std::u16string ExtractFilePath(std::u16string_view name) { return ExtractFilePathW(name); }
std::string ExtractFilePathA(std::string_view name) { return std::string(utils::PathOf(name)); }
std::u16string ExtractFilePathW(std::u16string_view name) { return std::u16string(utils::PathOf(name)); }

std::u16string ExtractFileName(std::u16string_view name) { return ExtractFileNameW(name); }
std::string ExtractFileNameA(std::string_view name) { return std::string(utils::BaseNameOf(name)); }
std::u16string ExtractFileNameW(std::u16string_view name) { return std::u16string(utils::BaseNameOf(name)); }

std::u16string ExtractFileExt(std::u16string_view name) { return ExtractFileExtW(name); }
std::string ExtractFileExtA(std::string_view name) { return std::string(utils::ExtensionOf(name)); }
std::u16string ExtractFileExtW(std::u16string_view name) { return std::u16string(utils::ExtensionOf(name)); }

std::string ExtractFileDriveA(std::string_view name) { return std::string(utils::DriveOf(name)); }
std::u16string ExtractFileDriveW(std::u16string_view name) { return std::u16string(utils::DriveOf(name)); }

std::u16string ChangeFileExt(std::u16string_view name, std::u16string_view extension) {
  return ChangeFileExtW(name, extension);
}
std::string ChangeFileExtA(std::string_view name, std::string_view extension) {
  return WithExtension(name, extension);
}
std::u16string ChangeFileExtW(std::u16string_view name, std::u16string_view extension) {
  return WithExtension(name, extension);
}

bool IsPathDelimiter(std::u16string_view text, std::size_t index) noexcept {
  return IsPathDelimiterW(text, index);
}
bool IsPathDelimiterA(std::string_view text, std::size_t index) noexcept {
  return utils::IsDelimiterAt(text, index);
}
bool IsPathDelimiterW(std::u16string_view text, std::size_t index) noexcept {
  return utils::IsDelimiterAt(text, index);
}

void IncludeTrailingPathDelimiterByRef(std::u16string& name) { IncludeDelimiter(name); }
void IncludeTrailingPathDelimiterByRefA(std::string& name) { IncludeDelimiter(name); }
void IncludeTrailingPathDelimiterByRefW(std::u16string& name) { IncludeDelimiter(name); }

std::u16string ExcludeTrailingPathDelimiter(std::u16string_view name) {
  return ExcludeTrailingPathDelimiterW(name);
}
std::string ExcludeTrailingPathDelimiterA(std::string_view name) {
  return std::string(utils::WithoutDelimiter(name));
}
std::u16string ExcludeTrailingPathDelimiterW(std::u16string_view name) {
  return std::u16string(utils::WithoutDelimiter(name));
}

}  // namespace ravo::DIUtils
