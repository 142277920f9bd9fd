// Containers of invoices over any bytes: a ZIP archive or a PDF is read or refused with words, unpacks to no
// more than is permitted, and its files get names that are safe and different.
#include "isdoc_extract.h"
#include "utf8_reader.h"

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::size_t kTotal = std::size_t{1} << 22;

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckNames(const std::vector<tool::ContainerPart>& parts) {
  const auto names = tool::SafeNames(parts);
  Require(names.size() == parts.size());
  Require(std::set<std::string>(names.begin(), names.end()).size() == names.size());
  for (const std::string& name : names) {
    Require(!name.empty() && name[0] != '.' && name.back() != '.' && name.back() != ' ');
    Require(name.find_first_of("/\\:*?\"<>|") == std::string::npos && name.size() <= 360);
    Require(tool::ValidUtf8Length(name) == name.size());
  }
}

void CheckParts(const std::vector<tool::ContainerPart>& parts) {
  std::size_t total = 0;
  for (const tool::ContainerPart& part : parts) total += part.bytes.size();
  Require(total <= kTotal && parts.size() <= tool::UnpackBudget::kParts);
  CheckNames(parts);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    CheckParts(tool::PartsOf(bytes, kTotal));
  } catch (const tool::ContainerError& error) {
    Require(!std::string_view(error.what()).empty());
  }
  CheckNames({{std::string(bytes), {}}, {std::string(bytes), {}}});
  return 0;
}
