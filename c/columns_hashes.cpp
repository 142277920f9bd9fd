#include "columns.h"
#include <ravo/utils/crc32.h>

#include <span>

using ravo::c::FailArgument;

namespace {

class Crc32Job {
 public:
  using Result = std::uint32_t;
  using Kept = Result;

  explicit Crc32Job(std::uint32_t* results) noexcept : results_(results) {}

  [[nodiscard]] Result Of(std::string_view text) const noexcept {
    return ravo::Crc32(std::as_bytes(std::span(text)));
  }
  [[nodiscard]] bool Put(std::size_t row, Result result) noexcept {
    results_[row] = result;
    return true;
  }
  [[nodiscard]] bool PutNull(std::size_t row) noexcept { return Put(row, 0); }
  void EndBlock(std::size_t /*first*/, std::size_t /*end*/) noexcept {}

 private:
  std::uint32_t* results_;
};

}  // namespace

ravo_status ravo_crc32_column(const ravo_column* column, uint32_t flags, uint32_t* results,
                              ravo_progress progress, void* context, ravo_error* error) {
  const ravo_status status = ravo::c::CheckColumn(column, ravo::c::kTexts, flags, error);
  if (status != RAVO_OK) return status;
  if (results == nullptr && column->length != 0) return FailArgument(error, "the results are null");
  return ravo::c::Guarded(error, [&] {
    Crc32Job job(results);
    return ravo::c::RunColumn(*column, {flags, progress, context}, job, error);
  });
}
