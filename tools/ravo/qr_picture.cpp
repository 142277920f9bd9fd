#include "qr_picture.h"

#include "compression.h"
#include <ravo/DIUtils.h>

#include <cstdint>
#include <string_view>

namespace tool {
namespace {

int SideOf(const QrModules& modules) { return modules.size + 2 * kQuietZone; }

// Light modules are drawn, dark ones are the ground.
std::string_view HalfBlock(bool upper_is_light, bool lower_is_light) {
  if (upper_is_light) return lower_is_light ? "█" : "▀";
  return lower_is_light ? "▄" : " ";
}

// A row past the last is no part of the code, so it must not be drawn as light.
std::string BlockLine(const QrModules& modules, int row) {
  const int end = modules.size + kQuietZone;
  std::string line;
  for (int column = -kQuietZone; column < end; ++column) {
    const bool lower_is_light = row + 1 < end && !modules.IsDark(row + 1, column);
    line += HalfBlock(!modules.IsDark(row, column), lower_is_light);
  }
  return line;
}

// The runs of dark modules of a row.
std::string SvgRow(const QrModules& modules, int row) {
  std::string path;
  for (int column = 0; column < modules.size; ++column) {
    const int begin = column;
    while (modules.IsDark(row, column)) ++column;
    if (column == begin) continue;
    const std::string length = std::to_string(column - begin);
    path.append("M").append(std::to_string(begin + kQuietZone)).append(" ");
    path.append(std::to_string(row + kQuietZone)).append("h").append(length);
    path.append("v1h-").append(length).append("z");
  }
  return path;
}

std::string BigEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

std::string PngChunk(std::string_view kind, std::string_view bytes) {
  const std::string content = std::string(kind).append(bytes);
  const std::uint32_t sum = ravo::DIUtils::Crc32OfBuf(content.data(), content.size());
  return BigEndian(static_cast<std::uint32_t>(bytes.size())) + content + BigEndian(sum);
}

// One bit a pixel, 1 for white; each row begins with the number of its filter, none.
std::string PngRow(const QrModules& modules, int row, int scale) {
  const int pixels = SideOf(modules) * scale;
  std::string bits(1, '\0');
  for (int pixel = 0; pixel < pixels; ++pixel) {
    if (pixel % 8 == 0) bits += '\0';
    const bool is_light = !modules.IsDark(row, pixel / scale - kQuietZone);
    const unsigned bit = is_light ? 0x80U >> pixel % 8 : 0;
    bits.back() = static_cast<char>(static_cast<unsigned char>(bits.back()) | bit);
  }
  return bits;
}

}  // namespace

std::string QrBlocks(const QrModules& modules, bool coloured) {
  std::string text;
  for (int row = -kQuietZone; row < modules.size + kQuietZone; row += 2) {
    const std::string line = BlockLine(modules, row);
    text += coloured ? "\x1b[97;40m" + line + "\x1b[0m\n" : line + "\n";
  }
  return text;
}

std::string QrSvg(const QrModules& modules) {
  const std::string side = std::to_string(SideOf(modules));
  std::string path;
  for (int row = 0; row < modules.size; ++row) path += "\n" + SvgRow(modules, row);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + side + " " + side +
         "\" shape-rendering=\"crispEdges\">\n<path fill=\"#fff\" d=\"M0 0h" + side + "v" + side +
         "H0z\"/>\n<path d=\"" + path.substr(1) + "\"/>\n</svg>\n";
}

std::string QrPng(const QrModules& modules, int scale) {
  const auto side = static_cast<std::uint32_t>(SideOf(modules) * scale);
  std::string pixels;
  for (int row = -kQuietZone; row < modules.size + kQuietZone; ++row) {
    const std::string line = PngRow(modules, row, scale);
    for (int copy = 0; copy < scale; ++copy) pixels += line;
  }
  // One bit of grey a pixel; compression, filter and interlace are 0.
  const std::string header = BigEndian(side) + BigEndian(side) + std::string("\x01\0\0\0\0", 5);
  return "\x89PNG\r\n\x1a\n" + PngChunk("IHDR", header) + PngChunk("IDAT", Deflate(pixels)) +
         PngChunk("IEND", "");
}

}  // namespace tool
