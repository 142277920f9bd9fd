#pragma once

#include <cstdint>
#include <string>

namespace ravo::test {

/// Notes in the report of the running test that it tried `count` more of something ("days", "code_units"),
/// for the sums on the reliability page.
void Tried(const std::string& what, std::int64_t count);

}  // namespace ravo::test
