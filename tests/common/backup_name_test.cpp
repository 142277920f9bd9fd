#include "support/fake_machine.h"
#include <ravo/common/backup_name.h>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

class ParseZalohaFileTest : public testing::Test {
 protected:
  ParseZalohaFileTest() { machine_.clock = {EncodeDateTime({{2011, 2, 3}, {14, 5, 9, 0}})}; }

  test::FakeMachine machine_;
  platform::ScopedMachine scope_{machine_};
};

TEST_F(ParseZalohaFileTest, FillsThePlaceholders) {
  struct Row {
    std::u16string_view name_template, firma, result;
  };
  constexpr Row rows[] = {
      {u"%FIRMA%_%DATUM%_%CAS%", u"A/B: s.r.o.", u"AB s.r.o._110203_140509"},
      {u"záloha.zip", u"A", u"záloha.zip"},
      {u"x%FIRMA%y", u"", u"xy"},
      {u"%firma%", u"A", u"A"},
      {u"%Firma%-%dAtUm%-%cas%", u"A", u"A-110203-140509"},
      {u"%FIRMA%%FIRMA%", u"A", u"AA"},
      {u"%CAS%%CAS%", u"A", u"140509140509"},
      {u"a:b*%FIRMA%?", u"*\\/:?\"<>|", u"a:b*?"},
      {u"%FIRMA", u"A", u"%FIRMA"},
      {u"%%FIRMA%%", u"A", u"%A%"},
      {u"%FIRMA%", u"%datum%", u"110203"},
      {u"", u"A", u""},
  };
  for (const Row& row : rows) EXPECT_EQ(ParseZalohaFile(row.name_template, row.firma), row.result);
}

TEST_F(ParseZalohaFileTest, ReadsTheClockTwiceAcrossMidnight) {
  machine_.clock = {EncodeDateTime({{2011, 12, 31}, {23, 59, 59, 0}}),
                    EncodeDateTime({{2012, 1, 1}, {0, 0, 0, 0}})};
  EXPECT_EQ(ParseZalohaFile(u"%CAS% %DATUM%", u""), u"000000 111231");
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
