#pragma once

namespace ravo::platform::posix {

/// Deletes a file, a link, or a folder with its contents; false if something stays. Follows no link, not
/// even one that another program puts in the place of a folder meanwhile.
bool DeleteEntry(const char* path);

/// Deletes the contents of an open folder and closes it; false if something stays, or for the invalid
/// descriptor -1. Folders may nest deeper than the process may open files.
bool DeleteEntriesOf(int folder);

}  // namespace ravo::platform::posix
