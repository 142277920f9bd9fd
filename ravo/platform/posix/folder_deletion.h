#pragma once

namespace ravo::platform::posix {

/// Deletes a file, a link or a folder with all that is in it. `name` is seen from the open folder `parent`,
/// or from the current one for `AT_FDCWD`. No link is followed on the way, not even one that another program
/// puts in the place of a folder meanwhile. False where something stays.
bool DeleteEntry(int parent, const char* name);

/// Deletes all that is in a folder, which is closed then; false also for -1, which is none.
bool DeleteEntriesOf(int folder);

}  // namespace ravo::platform::posix
