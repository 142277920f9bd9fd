#pragma once

#include "support/czech_settings.h"
#include "support/fake_machine.h"
#include <ravo/runtime/string_list.h>
#include <ravo/sysinfo/system_info.h>

#include <initializer_list>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ravo::test {

/// A report about a machine that the test defines. The machine starts empty, with the Czech locale.
class Report : public testing::Test {
 protected:
  using Lines = std::vector<std::u16string>;
  using Kind = RavoInterfaceInfo::TRavoSystemInfoTyp;

  static constexpr auto kLocalMachine = platform::RegistryRoot::LocalMachine;
  static constexpr std::u16string_view kBiosKey = u"HARDWARE\\DESCRIPTION\\System";
  static constexpr std::u16string_view kNtKey = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
  static constexpr std::u16string_view kWindowsKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

  Report() { machine.locale = CzechSettings(); }

  [[nodiscard]] std::u16string Text(Kind kind = RavoInterfaceInfo::siVisual) const {
    return RavoInterfaceInfo::TRavoSystemInfo().AsText(kind);
  }

  /// Returns the lines after a heading, up to the next one at the same depth or above.
  [[nodiscard]] Lines Section(std::u16string_view heading, Kind kind = RavoInterfaceInfo::siVisual) const {
    StringList all;
    all.SetText(Text(kind));
    Lines lines;
    bool inside = false;
    for (const std::u16string& line : all) {
      if (inside && line.find_first_not_of(u'\t') <= heading.find_first_not_of(u'\t')) break;
      if (inside) lines.push_back(line);
      inside = inside || line == heading;
    }
    EXPECT_TRUE(inside) << "no such heading: " << testing::PrintToString(heading);
    return lines;
  }

  void SetVersion(std::uint32_t family, std::uint32_t major, std::uint32_t minor,
                  std::u16string_view service_pack = u"") {
    machine.version.family = static_cast<platform::SystemFamily>(family);
    machine.version.major = major;
    machine.version.minor = minor;
    machine.version.service_pack = service_pack;
  }

  /// Returns texts in the form of a registry value of several texts, without the zero that ends the list.
  [[nodiscard]] static std::vector<std::byte> Stored(std::u16string_view units) {
    std::vector<std::byte> bytes;
    for (const char16_t unit : units) {
      bytes.push_back(static_cast<std::byte>(unit & 0xFF));
      bytes.push_back(static_cast<std::byte>(unit >> 8));
    }
    return bytes;
  }

  FakeMachine machine;

 private:
  platform::ScopedMachine in_force_{machine};
};

}  // namespace ravo::test
