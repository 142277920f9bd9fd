// A foreign program: a look-up, a text, a number, an exception that crosses the border of the library.
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>
#include <ravo/RavoInterfaceResources.h>
#include <ravo/RavoManager_TLB.h>
#include <ravo/package.h>

#include <cstdint>
#include <iostream>
#include <limits>
#include <string>

namespace {

int failures = 0;

void Expect(bool holds, const char* what) {
  if (holds) return;
  std::cout << "not so: " << what << "\n";
  ++failures;
}

bool OverflowArrives() {
  try {
    return ravo::Currency::FromUnits(std::numeric_limits<std::int64_t>::max()).raw == 0;
  } catch (const ravo::OverflowError& error) {
    return std::string(error.what()).size() > 0;
  }
}

}  // namespace

int main() {
  using namespace ravo;
  Expect(ToUtf8(RavoInterfaceCommon::GetTableDescription(71710)) == "Účetní deník", "the name of a table");
  Expect(RavoInterfaceResources::rPropertyDokladPZPohledavka.Text() == u"&Pohledávka", "a caption");
  Expect(RavoManager_TLB::IID_IRavoSession != Guid{}, "an identifier of an interface");
  Expect(OverflowArrives(), "an overflow arrives as what it is");
  if (failures == 0) std::cout << "consumer: all well\n";
  return failures;
}
