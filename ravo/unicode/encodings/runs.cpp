#include <ravo/unicode/encodings.h>
#include <ravo/unicode/encodings/codecs.h>
#include <ravo/unicode/encodings/runs.h>

#include <array>

namespace ravo::DIUnicode {
namespace {

// The most bytes that a codec makes of one character.
constexpr std::size_t kMostBytes = 4;

template <class Codec>
Run DecodeWith(std::span<const std::uint8_t> bytes, std::span<char16_t> text) {
  Run run;
  for (; run.made < text.size(); ++run.made) {
    SpanSource source(bytes.subspan(run.taken));
    char16_t ch = 0;
    if (!Codec::Decode(source, ch) || source.Exhausted()) break;
    text[run.made] = ch;
    run.taken += source.Position();
  }
  return run;
}

template <class Codec>
Run EncodeWith(std::span<const char16_t> text, std::span<std::uint8_t> bytes) {
  SpanTarget target(bytes);
  Run run;
  while (run.taken < text.size() && target.Room() >= kMostBytes && Codec::Encode(target, text[run.taken])) {
    ++run.taken;
  }
  run.made = target.Count();
  return run;
}

template <class Codec>
constexpr DecodeRun DecodeBy() {
  if constexpr (codecs::HasState<Codec>)
    return nullptr;
  else
    return DecodeWith<Codec>;
}

template <class Codec>
constexpr EncodeRun EncodeBy() {
  if constexpr (codecs::HasState<Codec>)
    return nullptr;
  else
    return EncodeWith<Codec>;
}

struct Runs {
  DecodeRun decode;
  EncodeRun encode;
};

#define RAVO_RUNS_Both(name) {DecodeBy<codecs::name>(), EncodeBy<codecs::name>()},
#define RAVO_RUNS_ReadOnly(name) {DecodeBy<codecs::name>(), nullptr},
#define RAVO_RUNS_WriteOnly(name) {nullptr, EncodeBy<codecs::name>()},
#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  RAVO_RUNS_##ways(name)
// In the order of `EncodingRows`.
constexpr Runs kRuns[] = {
#include <ravo/unicode/encodings/rows.inc>
};
#undef RAVO_ENCODING

}  // namespace

DecodeRun DecodeRunOf(const TDIUnicodeReadMethods& methods) noexcept {
  const auto rows = EncodingRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].read != nullptr && rows[i].read->ReadChar == methods.ReadChar) return kRuns[i].decode;
  }
  return nullptr;
}

EncodeRun EncodeRunOf(const TDIUnicodeWriteMethods& methods) noexcept {
  const auto rows = EncodingRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].write != nullptr && rows[i].write->WriteChar == methods.WriteChar) return kRuns[i].encode;
  }
  return nullptr;
}

}  // namespace ravo::DIUnicode
