#include <ravo/platform/posix/host_file.h>
#include <ravo/platform/posix/user.h>

#include <cerrno>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr std::size_t kMostRecordBytes = 1 << 20;

// Untested: the fields of an account are never null on Linux.
std::string TextOrEmpty(const char* text) { return text ? text : ""; }

}  // namespace

std::optional<User> CurrentUser() {
  std::vector<char> buffer(1024);
  passwd record{};
  passwd* found = nullptr;
  // Untested: the record of the account fits the first buffer.
  while (getpwuid_r(geteuid(), &record, buffer.data(), buffer.size(), &found) == ERANGE &&
         buffer.size() < kMostRecordBytes) {
    buffer.resize(2 * buffer.size());
  }
  // Untested: needs an account that the system does not list.
  if (!found) return std::nullopt;
  return User{TextOrEmpty(record.pw_name), std::string(FullNameOf(TextOrEmpty(record.pw_gecos))),
              TextOrEmpty(record.pw_dir)};
}

std::string_view FullNameOf(std::string_view comment) {
  return TrimmedBytes(comment.substr(0, comment.find(',')));
}

}  // namespace ravo::platform::posix
