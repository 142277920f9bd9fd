#pragma once

#include <string>

/// Links to folders, which some shells follow when they delete a folder that has one.
namespace ravo::platform {

/// Whether a name is that of a link to a folder.
[[nodiscard]] bool IsFolderLink(const std::wstring& name);

/// Takes away every link to a folder that lies in a folder or in those below it, and nothing that they lead
/// to. False where one cannot be taken away so.
[[nodiscard]] bool RemoveFolderLinks(const std::wstring& folder);

}  // namespace ravo::platform
