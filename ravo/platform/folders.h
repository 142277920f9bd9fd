#pragma once

#include <ravo/platform/chapter.h>

#include <cstdint>
#include <string>

namespace ravo::platform {

/// The folders that the system knows by their purpose.
enum class SystemFolder : std::uint8_t { System, Windows, Temporary, CommonDocuments };

/// Folders by their purpose.
class FolderCalls : public Chapter {
 public:
  /// Returns a folder of at most 259 units; empty if there is no such folder.
  ///
  /// It ends in a delimiter if the system itself gives one; the temporary folder always does.
  [[nodiscard]] virtual std::u16string Folder(SystemFolder folder) const = 0;
  /// Returns the folder that the shell has under a number (CSIDL); empty if that is no folder of the file
  /// system.
  ///
  /// It ends in a delimiter only if it is the root of a drive.
  [[nodiscard]] virtual std::u16string ShellFolder(std::int32_t number) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const FolderCalls& Folders() noexcept;

}  // namespace ravo::platform
