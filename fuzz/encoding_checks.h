#pragma once

#include <ravo/DIUnicode.h>
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/unicode/encoding_of.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Properties of any bytes in any encoding. The fuzz targets of the engines share them.
namespace ravo::fuzz {

using Bytes = std::span<const std::uint8_t>;

inline void Require(bool condition) {
  if (!condition) std::abort();
}

/// Copies into a separate block, so that an out-of-bounds read is detected.
inline std::unique_ptr<std::uint8_t[]> Copy(Bytes bytes) {
  auto copy = std::make_unique<std::uint8_t[]>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), copy.get());
  return copy;
}

inline std::u16string ReadRest(DIUnicode::TDIUnicodeReader& reader) {
  std::u16string text;
  while (reader.ReadChar()) text += reader.Char();
  return text;
}

inline std::u16string Read(const DIUnicode::TDIUnicodeReadMethods& methods, Bytes bytes) {
  const auto copy = Copy(bytes);
  DIUnicode::TDIUnicodeReader reader;
  reader.SetReadMethods(methods);
  reader.SetSourceBuffer(Bytes(copy.get(), bytes.size()));
  return ReadRest(reader);
}

/// Reads from two sources, the second stacked below the first.
inline std::u16string ReadInTwo(const DIUnicode::TDIUnicodeReadMethods& methods, Bytes bytes,
                                std::size_t cut) {
  const auto first = Copy(bytes.first(cut));
  const auto second = Copy(bytes.subspan(cut));
  DIUnicode::TDIUnicodeReader reader;
  reader.SetReadMethods(methods);
  reader.SetSourceBuffer(Bytes(second.get(), bytes.size() - cut));
  reader.PushSource(false);
  reader.SetSourceBuffer(Bytes(first.get(), cut));
  return ReadRest(reader);
}

/// Reads whole runs into a buffer of that many characters, and single characters where a run stops.
inline std::u16string ReadByRuns(const DIUnicode::TDIUnicodeReadMethods& methods, Bytes bytes,
                                 std::size_t room) {
  const codec::DecodeRun decode = unicode::EncodingOf(methods)->decode_run;
  if (decode == nullptr) return Read(methods, bytes);
  const auto copy = Copy(bytes);
  const auto target = std::make_unique<char16_t[]>(room);
  std::u16string text;
  for (Bytes rest(copy.get(), bytes.size());;) {
    const codec::Run run = decode(rest, std::span(target.get(), room));
    Require(run.taken <= rest.size() && run.made <= room);
    if (run.made == 0) return text + Read(methods, rest);
    text.append(target.get(), run.made);
    rest = rest.subspan(run.taken);
  }
}

/// Writes the characters that the encoding has, and returns their bytes; `text` keeps only these.
inline std::vector<std::uint8_t> Write(const DIUnicode::TDIUnicodeWriteMethods& methods,
                                       std::u16string& text) {
  DIUnicode::TDIUnicodeWriter writer;
  writer.SetWriteMethods(methods);
  std::erase_if(text, [&writer](char16_t ch) { return !writer.TryWriteCharW(ch); });
  writer.FlushDataBuffer();
  return {writer.Data().begin(), writer.Data().end()};
}

/// Encodes whole runs, and a single character where a run stops for lack of room.
inline void CheckEncodeRuns(const DIUnicode::EncodingRow& encoding, std::u16string_view text,
                            Bytes expected) {
  const codec::EncodeRun encode = unicode::EncodingOf(*encoding.write)->encode_run;
  if (encode == nullptr) return;
  const auto target = std::make_unique<std::uint8_t[]>(expected.size());
  const codec::Run run = encode(text, std::span(target.get(), expected.size()));
  Require(run.made <= expected.size() && expected.size() - run.made < 8);
  Require(std::equal(target.get(), target.get() + run.made, expected.begin()));
}

/// Reads runs up to an end with every kernel, and single characters where a run stops.
inline void CheckRunsUntil(const DIUnicode::TDIUnicodeReadMethods& methods, Bytes bytes, std::size_t room,
                           std::u16string_view expected) {
  const codec::DecodeUntil until = unicode::EncodingOf(methods)->decode_until;
  if (until == nullptr) return;
  const codec::EndBytes ends(bytes.empty() ? 'a' : bytes[bytes.size() / 2] & 0x7F, '\r', '\n');
  const auto copy = Copy(bytes);
  const auto target = std::make_unique<char16_t[]>(room);
  std::u16string text;
  for (Bytes rest(copy.get(), bytes.size());;) {
    const codec::RunUntil run = until(rest, std::span(target.get(), room), ends);
    Require(run.Taken() <= rest.size() && run.Made() <= room);
    const std::u16string_view made(target.get(), run.Made());
    for (const char16_t end : {ends.First(), ends.Second(), ends.Third()})
      Require(made.find(end) == std::u16string_view::npos);
    text += made;
    rest = rest.subspan(run.Taken());
    if (rest.empty()) break;
    if (run.Taken() != 0) continue;
    DIUnicode::TDIUnicodeReader reader;
    reader.SetReadMethods(methods);
    reader.SetSourceBuffer(rest);
    if (!reader.ReadChar()) break;
    text += reader.Char();
    rest = rest.subspan(reader.SourceBufferPosition());
  }
  Require(text == expected);
}

/// Decodes block by block into a buffer of `room` units, as a program converts a file.
inline std::u16string ReadInSteps(const DIUnicode::TDIUnicodeReadMethods& methods, Bytes bytes,
                                  std::size_t block, std::size_t room) {
  const codec::Encoding& encoding = *unicode::EncodingOf(methods);
  const auto copy = Copy(bytes);
  const auto target = std::make_unique<char16_t[]>(room);
  codec::State state;
  std::u16string text;
  std::size_t end = std::min(block, bytes.size());
  for (std::size_t at = 0;;) {
    const codec::Input input = end == bytes.size() ? codec::Input::IsLast : codec::Input::MoreFollows;
    const codec::Step step = codec::Decode(encoding, state, Bytes(copy.get() + at, end - at),
                                           std::span(target.get(), room), input);
    Require(step.taken <= end - at && step.made <= room);
    text.append(target.get(), step.made);
    at += step.taken;
    if (step.stop == codec::Stop::EndOfData) return text;
    if (step.stop == codec::Stop::RoomUsed) continue;
    Require(end - at <= codec::kMostBytesAtOnce);
    if (input == codec::Input::IsLast) return text;
    end = std::min(end + block, bytes.size());
  }
}

/// Reading terminates, gives the same result for every split of the bytes and at most as many characters as
/// bytes; the characters that can be written are read back.
inline void CheckEncoding(const DIUnicode::EncodingRow& encoding, Bytes bytes, std::size_t cut,
                          std::size_t room) {
  const DIUnicode::TDIUnicodeReadMethods& read =
      encoding.read != nullptr ? *encoding.read : DIUnicode::Read_UTF_7;
  const std::u16string text = Read(read, bytes);
  Require(text.size() <= bytes.size());
  Require(ReadInTwo(read, bytes, bytes.empty() ? 0 : cut % bytes.size()) == text);
  for (const codec::KernelSet& kernel : codec::KernelSets()) {
    if (!kernel.runs_here()) continue;
    const codec::ScopedKernels chosen(kernel);
    Require(ReadByRuns(read, bytes, room % 257 + 1) == text);
    Require(ReadInSteps(read, bytes, cut % 61 + 1, room % 257 + 1) == text);
    CheckRunsUntil(read, bytes, room % 257 + 1, text);
  }
  if (encoding.write == nullptr) return;
  std::u16string encodable = text;
  const std::vector<std::uint8_t> written = Write(*encoding.write, encodable);
  Require(Read(read, written) == encodable);
  CheckEncodeRuns(encoding, encodable, written);
}

/// The first bytes choose an encoding whose engine begins like this, the split and the room.
inline int CheckEngine(std::string_view engine, Bytes input) {
  std::vector<const DIUnicode::EncodingRow*> encodings;
  for (const DIUnicode::EncodingRow& row : DIUnicode::EncodingRows()) {
    if (row.engine.starts_with(engine)) encodings.push_back(&row);
  }
  if (input.size() < 3) return 0;
  CheckEncoding(*encodings[input[0] % encodings.size()], input.subspan(3), input[1], input[2]);
  return 0;
}

}  // namespace ravo::fuzz
