#include <ravo/codec/utf7.h>

#include <array>
#include <string_view>

namespace ravo::codec {
namespace {

constexpr std::string_view kLettersAndDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::string_view kAlways = "'(),-./:? \t\r\n";
constexpr std::string_view kOptional = "!\"#$%&*;<=>@[]^_`{|}";
constexpr std::string_view kBase64 = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// Untested: runs at compile time only.
constexpr std::size_t Place(char ch) { return static_cast<unsigned char>(ch); }

consteval auto MakeKinds() {
  std::array<Utf7Direct, 128> kinds{};
  kinds.fill(Utf7Direct::Never);
  for (const char ch : kOptional) kinds[Place(ch)] = Utf7Direct::Optional;
  for (const char ch : kAlways) kinds[Place(ch)] = Utf7Direct::Always;
  for (const char ch : kLettersAndDigits) kinds[Place(ch)] = Utf7Direct::Always;
  return kinds;
}

consteval auto MakeValues() {
  std::array<std::int8_t, 256> values{};
  values.fill(-1);
  for (std::size_t value = 0; value < kBase64.size(); ++value) {
    values[Place(kBase64[value])] = static_cast<std::int8_t>(value);
  }
  return values;
}

constexpr auto kKinds = MakeKinds();
constexpr auto kValues = MakeValues();

}  // namespace

Utf7Direct Utf7DirectKind(char16_t ch) noexcept {
  return ch < kKinds.size() ? kKinds[ch] : Utf7Direct::Never;
}

int Base64Value(std::uint8_t byte) noexcept { return kValues[byte]; }

std::uint8_t Base64Byte(std::uint32_t six_bits) noexcept {
  return static_cast<std::uint8_t>(kBase64[six_bits & 0x3F]);
}

}  // namespace ravo::codec
