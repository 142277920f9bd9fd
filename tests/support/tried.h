#pragma once

#include <cstdint>
#include <string>

namespace ravo::test {

/// Records in the report of the running test that it tried `count` more cases of a kind ("days",
/// "code_units"), for the sums on the reliability page.
void Tried(const std::string& what, std::int64_t count);

}  // namespace ravo::test
