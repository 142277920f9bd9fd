#pragma once

#include "convert_source.h"
#include <ravo/convert/text_converter.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace tool {

using ravo::convert::ByteBuffer;
using ravo::convert::Character;
using ravo::convert::Conversion;
using ravo::convert::Converted;
using ravo::convert::ExactEncoding;
using ravo::convert::Fault;
using ravo::convert::Following;
using ravo::convert::TextConverter;
using ravo::convert::TextExtent;

/// Where and why a conversion ended before the text did.
struct ConversionEnd {
  Fault fault;
  std::uint64_t line = 0;
  std::uint64_t column = 0;
  const ravo::codec::Encoding* from = nullptr;
};

/// Converts several files into one, block by block: the memory does not grow with them. Large files are
/// converted by several threads, to the same bytes and the same end.
class FileConverter {
 public:
  /// Gets the output in order; returns false to end the conversion.
  using Write = std::function<bool(std::string_view)>;
  /// Hears how many bytes of the file are converted.
  using Progress = std::function<void(std::int64_t)>;
  /// Hears what was found out about the encoding.
  using Note = std::function<void(const std::string&)>;

  /// `conversion.from` is set by each file.
  FileConverter(const Conversion& conversion, unsigned threads, Write write);

  /// Converts a file. What is before an end is written.
  [[nodiscard]] std::optional<ConversionEnd> Convert(const SourceEncoding& from, ByteSource& source,
                                                     const Note& note, const Progress& progress);
  /// Writes what the encoder holds back; returns false if that fails.
  bool Finish();

 private:
  struct Block;
  class Blocks;

  bool WriteOut(Converted& converted);
  bool ConvertPlainStart(ByteSource& source, const Progress& progress);
  void ConvertInOrder(ByteSource& source, const Progress& progress);
  void ConvertOnThreads(ByteSource& source, const Progress& progress);
  [[nodiscard]] bool UsesThreads(const ByteSource& source) const;

  Conversion conversion_;
  unsigned threads_;
  Write write_;
  TextConverter converter_;

  // Of the file that is being converted.
  TextExtent extent_;
  std::int64_t done_ = 0;
  std::optional<Fault> fault_;
};

}  // namespace tool
