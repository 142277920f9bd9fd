#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// What containers of invoices hold: ISDOCX, which is a ZIP archive, and PDF with embedded files.
///
/// A container is foreign: sizes that it states are believed nowhere, names in it are texts, and what it
/// unpacks to is bounded before it is unpacked.
namespace tool {

/// A container that is damaged, encrypted or larger than permitted; the message is for people.
struct ContainerError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A file in a container.
struct ContainerPart {
  std::string name;  ///< as the container has it, in UTF-8
  std::string bytes;
};

/// Limits what is unpacked: a size in all, and for each part a ratio to its packed size.
class UnpackBudget {
 public:
  /// No more than this many bytes for one compressed byte; a mebibyte is always permitted.
  static constexpr std::size_t kRatio = 200;
  static constexpr std::size_t kParts = 1000;

  explicit UnpackBudget(std::size_t total) : rest_(total) {}

  /// Returns the bytes of a deflated part. Throws `ContainerError`.
  [[nodiscard]] std::string Unpack(std::string_view data, bool zlib_header);
  /// Returns the bytes of a part that is not compressed. Throws `ContainerError`.
  [[nodiscard]] std::string Copy(std::string_view data);
  /// Counts a part. Throws `ContainerError` for one too many.
  void CountPart();

 private:
  std::size_t rest_;
  std::size_t parts_ = 0;
};

/// Returns whether a file begins as a ZIP archive does, or as a PDF.
[[nodiscard]] bool IsZip(std::string_view bytes);
[[nodiscard]] bool IsPdf(std::string_view bytes);

/// Returns the files of a ZIP archive, in the order of its directory. Throws `ContainerError`.
[[nodiscard]] std::vector<ContainerPart> ZipParts(std::string_view bytes, UnpackBudget& budget);

/// Returns the files that a PDF has embedded. Throws `ContainerError`.
[[nodiscard]] std::vector<ContainerPart> PdfParts(std::string_view bytes, UnpackBudget& budget);

/// Returns the files of either container, of at most `total` bytes in all. Throws `ContainerError`, also for
/// any other file.
[[nodiscard]] std::vector<ContainerPart> PartsOf(std::string_view bytes, std::size_t total);

/// Returns whether a part is an invoice: an XML document in the namespace of ISDOC.
[[nodiscard]] bool IsInvoice(const ContainerPart& part);

/// Returns names under which the parts can be written into one folder on every system, different without
/// regard to case: no folders, no control characters, no reserved names.
[[nodiscard]] std::vector<std::string> SafeNames(const std::vector<ContainerPart>& parts);

}  // namespace tool
