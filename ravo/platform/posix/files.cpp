#include <ravo/platform/file_stream.h>
#include <ravo/platform/pe_file.h>
#include <ravo/platform/posix/attributes.h>
#include <ravo/platform/posix/clock.h>
#include <ravo/platform/posix/file_search.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/version_resource_block.h>
#include <ravo/runtime/error.h>

#include <sys/stat.h>

namespace ravo::platform::posix {
namespace {

// Opening a pipe would wait for its writer.
bool IsOrdinaryFile(std::u16string_view name) {
  const auto path = HostPath(name);
  struct stat facts {};
  return path && stat(path->c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

}  // namespace

std::optional<FileFacts> PosixPaths::FindFile(std::u16string_view name) const {
  const auto path = FirstFound(HostPath(name, root_).value_or(""));
  struct stat facts {};
  // Untested: the file would have to be deleted between two calls.
  if (!path || stat(path->c_str(), &facts) != 0) return std::nullopt;
  const bool is_folder = S_ISDIR(facts.st_mode);
  return FileFacts{is_folder ? 0 : std::int64_t{facts.st_size}, LocalDateTime(facts.st_mtim),
                   AttributesOf(*path, is_folder)};
}

std::unique_ptr<VersionResource> PosixPaths::OpenVersionResource(std::u16string_view name) const {
  if (!IsOrdinaryFile(name)) return nullptr;
  try {
    FileStream file(name, FileMode::Read);
    auto resource = ReadVersionResource(file);
    return resource ? std::make_unique<VersionResourceBlock>(std::move(*resource)) : nullptr;
  } catch (const StreamError&) {
    return nullptr;
  }
}

}  // namespace ravo::platform::posix
