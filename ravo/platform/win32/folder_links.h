#pragma once

#include <string>

/// What some shells do harm with when they delete a folder that has it: links to folders, which they follow,
/// and names that are too long for them, where they go on in the current folder.
namespace ravo::platform {

/// Whether a name is that of a link to a folder.
[[nodiscard]] bool IsFolderLink(const std::wstring& name);

/// Takes away every link to a folder that lies in a folder or in those below it, and nothing that they lead
/// to. False where one cannot be taken away so, or where a name is too long for the shell.
[[nodiscard]] bool MakeSafeForShell(const std::wstring& folder);

}  // namespace ravo::platform
