#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tool {

/// Calls `take` with each word of a command line, and in place of "-" with each line of standard input, as it
/// is read. Throws `std::runtime_error`, whose message is for people, if that cannot be read.
void ForEachValue(const std::vector<std::string>& words, const std::function<void(const std::string&)>& take);

}  // namespace tool
