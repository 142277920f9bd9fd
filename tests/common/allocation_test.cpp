#include "support/allocation_count.h"
#include <ravo/RavoInterfaceCommon.h>

#include <new>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

template <class Work>
std::size_t AllocationsOf(const Work& work) {
  const std::size_t before = test::AllocationCount();
  work();
  return test::AllocationCount() - before;
}

constexpr std::u16string_view kTexts[] = {u"",
                                          u"604",
                                          u"604100",
                                          u"12a",
                                          u"79927398713",
                                          u" 604100\t",
                                          u"1234567",
                                          u"4006381333932",
                                          u"400638133393",
                                          u"19-2000145399/0800",
                                          u"1234567890123456789012345678901234567890"};

TEST(Allocations, CountingWorks) {
  if (!test::kAllocationsCounted) GTEST_SKIP() << "the sanitizer has an allocator of its own";
  EXPECT_EQ(AllocationsOf([] { ::operator delete(::operator new(1)); }), 1U);
}

TEST(Allocations, ValidatorsMakeNone) {
  if (!test::kAllocationsCounted) GTEST_SKIP() << "the sanitizer has an allocator of its own";
  // Results of text type already have enough capacity.
  std::u16string first(16, u' ');
  std::u16string second(16, u' ');
  std::u16string third(16, u' ');
  for (const std::u16string_view text : kTexts) {
    EXPECT_EQ(AllocationsOf([&] {
                static_cast<void>(IsNumbers(text));
                static_cast<void>(ValidSU(text));
                static_cast<void>(ValidAU(text));
                static_cast<void>(ValidUcet(text));
                static_cast<void>(ValidVS(text));
                static_cast<void>(UcetMod11(text));
                UcetNaSUAU(text, first, second);
                static_cast<void>(CalculateEAN(text, first, second, third));
              }),
              0U);
  }
}

TEST(Allocations, RoundingMakesNone) {
  if (!test::kAllocationsCounted) GTEST_SKIP() << "the sanitizer has an allocator of its own";
  EXPECT_EQ(AllocationsOf([] {
              for (const TRoundType type : {rtUp, rtDown, rtMath}) {
                static_cast<void>(RoundValue({INT64_C(123456789)}, type, 2));
                static_cast<void>(RoundValue({INT64_C(9000000000000000000)}, type, -1));
                static_cast<void>(RoundValueFloat(1234.5678, type, 2));
              }
              static_cast<void>(RoundDPH({INT64_C(123456789)}, u'P'));
            }),
            0U);
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
