#include "qr_modules.h"

#include <memory>
#include <string>

#include <qrencode.h>

namespace tool {

bool DrawsQrCodes() { return true; }

std::optional<QrModules> QrModulesOf(std::string_view text) {
  constexpr int kSmallest = 0;
  constexpr int kCaseCounts = 1;
  const std::unique_ptr<QRcode, void (*)(QRcode*)> code(
      QRcode_encodeString(std::string(text).c_str(), kSmallest, QR_ECLEVEL_M, QR_MODE_8, kCaseCounts),
      QRcode_free);
  if (!code) return std::nullopt;
  QrModules modules{code->width, {}};
  const auto count = static_cast<std::size_t>(code->width) * static_cast<std::size_t>(code->width);
  modules.dark.resize(count);
  // The lowest bit is the colour; the others tell what a module is for.
  for (std::size_t i = 0; i < count; ++i) modules.dark[i] = (code->data[i] & 1U) != 0;
  return modules;
}

}  // namespace tool
