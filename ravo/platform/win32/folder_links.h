#pragma once

#include <string>

/// Some shells do harm when they delete a folder: they follow links to folders, and for names that are too
/// long they delete in the current folder instead.
namespace ravo::platform {

/// Tells whether a name is that of a link to a folder.
[[nodiscard]] bool IsFolderLink(const std::wstring& name);

/// Removes every link to a folder inside a folder and the folders below it, without touching the targets;
/// false if one cannot be removed, or if a name is too long for the shell.
[[nodiscard]] bool MakeSafeForShell(const std::wstring& folder);

}  // namespace ravo::platform
