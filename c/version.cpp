#include "support.h"
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/czech/banks.h>

#include <string>

using ravo::c::Guarded;
using ravo::c::WriteText;

namespace {

std::string DateText(ravo::czech::Day day) {
  const ravo::DateParts date = ravo::czech::PartsOf(day);
  const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return std::to_string(date.year) + "-" + two(date.month) + "-" + two(date.day);
}

std::string BuildInfo() {
  return "version: " RAVO_VERSION "\nkernels: " + std::string(ravo::codec::ChosenKernels().name) +
         "\nbanks: " + DateText(ravo::czech::BuiltInBanks().date) + "\n";
}

}  // namespace

const char* ravo_version(void) { return RAVO_VERSION; }

ravo_status ravo_build_info(char* buffer, size_t size, size_t* length, ravo_error* error) {
  return Guarded(error, [&] { return WriteText({buffer, size, length}, BuildInfo(), error); });
}
