#include "support/czech_settings.h"
#include "support/fake_machine.h"
#include <ravo/common/float_separator.h>
#include <ravo/runtime/error.h>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

class FloatSeparator : public testing::Test {
 protected:
  FloatSeparator() { machine_.locale = test::CzechSettings(); }

 private:
  test::FakeMachine machine_;
  platform::ScopedMachine in_force_{machine_};
};

using FloatToStr = FloatSeparator;
using StrToFloat = FloatSeparator;

TEST_F(FloatToStr, GeneralTextWithTheGivenSeparator) {
  EXPECT_EQ(FloatToStr_(1.5, u'.'), u"1.5");
  EXPECT_EQ(FloatToStr_(1.5, u','), u"1,5");
  EXPECT_EQ(FloatToStr_(1.5, u';'), u"1;5");
  EXPECT_EQ(FloatToStr_(-1234567.125, u'.'), u"-1234567.125");
  EXPECT_EQ(FloatToStr_(100, u'.'), u"100");
  EXPECT_EQ(FloatToStr_(0, u'.'), u"0");
  EXPECT_EQ(FloatToStr_(1e20, u'.'), u"1E20");
  EXPECT_EQ(FloatToStr_(1.5e-7, u'.'), u"1.5E-7");
}

TEST_F(StrToFloat, TakesTheGivenSeparator) {
  EXPECT_EQ(StrToFloat_(u"1.5", u'.'), 1.5);
  EXPECT_EQ(StrToFloat_(u"-0.25", u'.'), -0.25);
  EXPECT_EQ(StrToFloat_(u"1;5E3", u';'), 1500);
  EXPECT_EQ(StrToFloat_(u"100", u'.'), 100);
  // The locale's separator is still accepted.
  EXPECT_EQ(StrToFloat_(u"1,5", u'.'), 1.5);
}

// The mantissa is all ones before it is rounded up.
TEST_F(StrToFloat, RoundsUpToAPowerOfTwo) {
  EXPECT_EQ(StrToFloat_(u"18446744073709551615.6", u'.'), Extended{18446744073709551616.0});
  EXPECT_EQ(StrToFloat_(u"0.9999999999999999999999", u'.'), 1);
}

TEST_F(StrToFloat, OtherTextsRaise) {
  for (const std::u16string_view text : {u"", u".", u"1.5.2", u"1.5,2", u"abc", u"1.5x"}) {
    EXPECT_THROW(static_cast<void>(StrToFloat_(text, u'.')), ConvertError) << testing::PrintToString(text);
  }
}

TEST_F(FloatToStr, IsReadBackWhateverTheLocale) {
  for (const char16_t locale : {u'.', u',', u'\''}) {
    test::FakeMachine machine;
    machine.locale.decimal_separator = locale;
    const platform::ScopedMachine in_force(machine);
    for (const Extended value : {Extended{0.5}, Extended{-1234.0625}, Extended{1e300}, Extended{5e-324}}) {
      const std::u16string text = FloatToStr_(value, u'.');
      EXPECT_EQ(text.find(u','), std::u16string::npos);
      EXPECT_EQ(FloatToStr_(StrToFloat_(text, u'.'), u'.'), text);
    }
  }
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
