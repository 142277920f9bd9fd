#include "system_reason.h"

#include "text.h"

#include <utility>

namespace tool {
namespace {

constexpr std::pair<std::errc, const char*> kSystemReasons[] = {
    {std::errc::no_such_file_or_directory, ToTranslate("there is no such file")},
    {std::errc::permission_denied, ToTranslate("access is denied")},
    {std::errc::operation_not_permitted, ToTranslate("access is denied")},
    {std::errc::too_many_files_open, ToTranslate("too many files are open")},
    {std::errc::is_a_directory, ToTranslate("it is a folder")},
    {std::errc::not_a_directory, ToTranslate("a part of its path is not a folder")},
    {std::errc::filename_too_long, ToTranslate("the name is too long")},
    {std::errc::no_space_on_device, ToTranslate("the disk is full")},
    {std::errc::read_only_file_system, ToTranslate("the disk is read-only")},
    {std::errc::too_many_symbolic_link_levels, ToTranslate("its links lead in a circle")},
    {std::errc::io_error, ToTranslate("the device reports an error")},
};

}  // namespace

std::string SystemReason(const std::error_code& code) {
  for (const auto& [condition, text] : kSystemReasons) {
    if (code == condition) return Text(text);
  }
  return code.message();
}

}  // namespace tool
