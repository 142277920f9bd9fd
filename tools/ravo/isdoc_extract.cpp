#include "isdoc_extract.h"

#include "compression.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tool {
namespace {

constexpr std::uint64_t kAlwaysPermitted = std::uint64_t{1} << 20;
// The header of a PDF may follow other bytes.
constexpr std::size_t kPdfHeaderWithin = 1024;
constexpr std::size_t kInvoiceBeginsWithin = 4096;

[[noreturn]] void FailTooLarge() {
  throw ContainerError(
      Text("it unpacks to more than is permitted; --max-size permits more, if you trust the file"));
}

}  // namespace

std::string UnpackBudget::Unpack(std::string_view data, bool zlib_header) {
  const std::uint64_t by_ratio = std::max(kAlwaysPermitted, std::uint64_t{data.size()} * kRatio);
  const auto limit = static_cast<std::size_t>(std::min<std::uint64_t>(rest_, by_ratio));
  Inflated inflated = Inflate(data, zlib_header ? DeflateFrame::Zlib : DeflateFrame::None, limit);
  if (inflated.fault == InflateFault::TooLarge && limit < rest_) {
    throw ContainerError(
        Text("a part of it unpacks to more than {0} times its size", {std::to_string(kRatio)}));
  }
  if (inflated.fault == InflateFault::TooLarge) FailTooLarge();
  if (inflated.fault) throw ContainerError(Text("a part of it is damaged and cannot be unpacked"));
  rest_ -= inflated.bytes.size();
  return std::move(inflated.bytes);
}

std::string UnpackBudget::Copy(std::string_view data) {
  if (data.size() > rest_) FailTooLarge();
  rest_ -= data.size();
  return std::string(data);
}

void UnpackBudget::CountPart() {
  if (++parts_ > kParts) throw ContainerError(Text("it has more than {0} parts", {std::to_string(kParts)}));
}

bool IsZip(std::string_view bytes) {
  return bytes.starts_with("PK\x03\x04") || bytes.starts_with("PK\x05\x06");
}

bool IsPdf(std::string_view bytes) {
  return bytes.substr(0, kPdfHeaderWithin).find("%PDF-") != std::string_view::npos;
}

std::vector<ContainerPart> PartsOf(std::string_view bytes, std::size_t total) {
  UnpackBudget budget(total);
  if (!IsZip(bytes) && !IsPdf(bytes)) {
    throw ContainerError(IsInvoice({{}, std::string(bytes.substr(0, kInvoiceBeginsWithin))})
                             ? Text("it is no container, it is the invoice itself")
                             : Text("it is neither a ZIP archive (ISDOCX) nor a PDF"));
  }
  // Untested: the builds that are tested have zlib.
  if (!HasCompression()) throw ContainerError(Text("this build of ravo cannot unpack containers"));
  return IsZip(bytes) ? ZipParts(bytes, budget) : PdfParts(bytes, budget);
}

bool IsInvoice(const ContainerPart& part) {
  const std::string_view begin = std::string_view(part.bytes).substr(0, kInvoiceBeginsWithin);
  constexpr std::string_view kNamespace = "isdoc.cz/namespace/";
  constexpr std::string_view kManifest = "isdoc.cz/namespace/2013/manifest";
  return begin.find('<') != std::string_view::npos && begin.find(kNamespace) != std::string_view::npos &&
         begin.find(kManifest) == std::string_view::npos;
}

}  // namespace tool
