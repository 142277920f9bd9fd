#include "support/scratch_folder.h"
#include "support/suite_name.h"

#include <gtest/gtest.h>

// Each is compiled with the system's header before or after ours, with or without UNICODE.
namespace names_before_plain {
bool DeletesUnderEachName(const std::u16string& folder);
}
namespace names_before_unicode {
bool DeletesUnderEachName(const std::u16string& folder);
}
namespace names_after_plain {
bool DeletesUnderEachName(const std::u16string& folder);
}
namespace names_after_unicode {
bool DeletesUnderEachName(const std::u16string& folder);
}

namespace ravo::test {
namespace {

TEST(WindowsNames, WorkOnEitherSideOfTheSystemsHeader) {
  const ScratchFolder scratch;
  const std::u16string folder = SuiteName(scratch.Path());
  EXPECT_TRUE(names_before_plain::DeletesUnderEachName(folder));
  EXPECT_TRUE(names_before_unicode::DeletesUnderEachName(folder));
  EXPECT_TRUE(names_after_plain::DeletesUnderEachName(folder));
  EXPECT_TRUE(names_after_unicode::DeletesUnderEachName(folder));
}

}  // namespace
}  // namespace ravo::test
