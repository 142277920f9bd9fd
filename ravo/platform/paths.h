#pragma once

#include <ravo/platform/chapter.h>
#include <ravo/runtime/date_time.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform {

/// A file as a directory search finds it.
struct FileFacts {
  std::int64_t size = 0;         ///< in bytes
  DateTime written = 0;          ///< last write, in local time
  std::uint32_t attributes = 0;  ///< bits with the numbers that Windows gives them (`files.h`)
};

/// The version resource of a file.
class VersionResource {
 public:
  VersionResource() = default;
  VersionResource(const VersionResource&) = delete;
  VersionResource& operator=(const VersionResource&) = delete;
  virtual ~VersionResource();

  /// Returns the first entry of the translation list: the language in the low 16 bits, the code page in the
  /// high ones.
  [[nodiscard]] virtual std::optional<std::uint32_t> FirstTranslation() const = 0;

  /// Returns the text of a string table's key up to its terminating zero.
  ///
  /// `table` is the table's name of eight hexadecimal digits. Table and key compare without regard to case.
  [[nodiscard]] virtual std::optional<std::u16string> String(std::u16string_view table,
                                                             std::u16string_view key) const = 0;
};

/// Names of files, and facts about the files under them.
class PathCalls : public Chapter {
 public:
  /// Returns "\" on Windows, "/" elsewhere. Names take both everywhere.
  [[nodiscard]] virtual char16_t PathDelimiter() const = 0;
  /// Returns a name expanded against the process's current folder.
  [[nodiscard]] virtual std::u16string FullPath(std::u16string_view name) const = 0;
  /// Returns the first match of a directory search, file or folder.
  ///
  /// "*" and "?" in the last part match any text and any character. A name that ends in a delimiter matches
  /// nothing.
  [[nodiscard]] virtual std::optional<FileFacts> FindFile(std::u16string_view name) const = 0;
  /// Opens the version resource of a file; null if it has none.
  [[nodiscard]] virtual std::unique_ptr<VersionResource> OpenVersionResource(
      std::u16string_view name) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const PathCalls& Paths() noexcept;

}  // namespace ravo::platform
