#include <ravo/platform/files.h>
#include <ravo/platform/paths.h>
#include <ravo/utils/ansi_text.h>
#include <ravo/utils/files.h>
#include <ravo/utils/folders.h>
#include <ravo/utils/open_file.h>

namespace ravo::DIUtils {
namespace {

using platform::FilePurpose;
using utils::Wide;

// The range of years of file times.
constexpr std::int32_t kFirstYear = 1601;
constexpr std::int32_t kLastYear = 30827;

}  // namespace

bool FileExists(std::u16string_view name) { return FileExistsW(name); }
bool FileExistsA(std::string_view name) { return FileExistsW(Wide(name)); }
bool FileExistsW(std::u16string_view name) {
  const auto attributes = platform::Files().Attributes(name);
  return attributes && (*attributes & platform::kFolderAttribute) == 0;
}

std::int64_t GetFileSize(std::u16string_view name) { return GetFileSizeW(name); }
std::int64_t GetFileSizeA(std::string_view name) { return GetFileSizeW(Wide(name)); }
std::int64_t GetFileSizeW(std::u16string_view name) {
  const auto found = platform::Paths().FindFile(name);
  return found ? found->size : -1;
}

bool SetFileDate(FileHandle file, std::int32_t year, std::uint16_t month, std::uint16_t day) {
  // Not every system rejects such days.
  if (year < kFirstYear || year > kLastYear || !IsDateValid(year, month, day)) return false;
  return platform::Files().SetTimes(file, static_cast<std::uint16_t>(year), month, day);
}

bool SetFileDateYmd(std::u16string_view name, std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return SetFileDateYmdW(name, year, month, day);
}
bool SetFileDateYmdA(std::string_view name, std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return SetFileDateYmdW(Wide(name), year, month, day);
}
bool SetFileDateYmdW(std::u16string_view name, std::int32_t year, std::uint16_t month, std::uint16_t day) {
  const utils::OpenFile file(name, DirectoryExistsW(name) ? FilePurpose::DateFolder : FilePurpose::Date);
  return file.IsOpen() && SetFileDate(file.Handle(), year, month, day);
}

bool SetFileDate(std::u16string_view name, TJulianDate date) { return SetFileDateW(name, date); }
bool SetFileDateA(std::string_view name, TJulianDate date) { return SetFileDateW(Wide(name), date); }
bool SetFileDateW(std::u16string_view name, TJulianDate date) {
  // The calendar's formulas do not cover every day.
  if (date < YmdToJulianDate(kFirstYear, 1, 1) || date > YmdToJulianDate(kLastYear, 12, 31)) return false;
  std::int32_t year = 0;
  std::uint16_t month = 0;
  std::uint16_t day = 0;
  JulianDateToYmd(date, year, month, day);
  return SetFileDateYmdW(name, year, month, day);
}

bool DeleteFile(std::u16string_view name) { return DeleteFileW(name); }
bool DeleteFileA(std::string_view name) { return DeleteFileW(Wide(name)); }
bool DeleteFileW(std::u16string_view name) { return platform::Files().RemoveFile(name); }

}  // namespace ravo::DIUtils
