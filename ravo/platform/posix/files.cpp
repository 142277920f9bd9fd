#include <ravo/platform/file_stream.h>
#include <ravo/platform/pe_file.h>
#include <ravo/platform/posix/clock.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/version_resource_block.h>
#include <ravo/runtime/error.h>

#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr std::uint32_t kReadOnly = 0x1;
constexpr std::uint32_t kHidden = 0x2;
constexpr std::uint32_t kDirectory = 0x10;
constexpr std::uint32_t kArchive = 0x20;

// Whether the last part of a path begins with a dot and is more than a way of saying "here" or "above".
bool IsHidden(std::string_view path) {
  while (path.ends_with('/')) path.remove_suffix(1);
  const std::string_view name = path.substr(path.rfind('/') + 1);
  return name.starts_with('.') && name != "." && name != "..";
}

std::uint32_t AttributesOf(const std::string& path, bool is_folder) {
  std::uint32_t attributes = is_folder ? kDirectory : kArchive;
  if (access(path.c_str(), W_OK) != 0) attributes |= kReadOnly;
  if (IsHidden(path)) attributes |= kHidden;
  return attributes;
}

}  // namespace

std::optional<FileFacts> PosixMachine::FindFile(std::u16string_view name) const {
  const auto path = HostPath(name, root_);
  struct stat facts {};
  if (!path || stat(path->c_str(), &facts) != 0) return std::nullopt;
  const bool is_folder = S_ISDIR(facts.st_mode);
  return FileFacts{is_folder ? 0 : std::int64_t{facts.st_size}, LocalDateTime(facts.st_mtim),
                   AttributesOf(*path, is_folder)};
}

std::unique_ptr<VersionResource> PosixMachine::OpenVersionResource(std::u16string_view name) const {
  try {
    FileStream file(name, FileMode::Read);
    auto resource = ReadVersionResource(file);
    return resource ? std::make_unique<VersionResourceBlock>(std::move(*resource)) : nullptr;
  } catch (const StreamError&) {
    return nullptr;
  }
}

}  // namespace ravo::platform::posix
