#pragma once

namespace ravo::platform::posix {

/// Deletes a file, a link or a folder with all that is in it. No link is followed on the way, not even one
/// that another program puts in the place of a folder meanwhile. False if something stays.
bool DeleteEntry(const char* path);

/// Deletes all that is in a folder, which is closed then; false also for -1, which is none. Folders may nest
/// deeper than the process may open files.
bool DeleteEntriesOf(int folder);

}  // namespace ravo::platform::posix
