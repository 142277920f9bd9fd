// CRC-32 over short and long texts, beside libdeflate and zlib; and the kernel that processors without
// carry-less multiplication use, beside zlib alone.
#include "ratio.h"
#include <ravo/DIUtils.h>
#include <ravo/utils/crc32_kernels.h>

#include <random>

#include <libdeflate.h>
#include <zlib.h>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes RandomBytes(std::size_t count) {
  std::mt19937 random(7);
  Bytes bytes(count);
  for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random());
  return bytes;
}

// Each checksum starts from the previous one, as for a text in blocks, so all of them are needed.
template <class Update>
void Register(const std::string& name, std::size_t size, Update update) {
  benchmark::RegisterBenchmark(name.c_str(), [bytes = RandomBytes(size), update](benchmark::State& state) {
    std::uint32_t crc = 0;
    for (auto _ : state) crc = update(crc, bytes);
    benchmark::DoNotOptimize(crc);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
  });
}

std::uint32_t OurCrc(std::uint32_t crc, const Bytes& bytes) {
  return ravo::DIUtils::UpdateCrc32OfBuf(crc, bytes.data(), bytes.size());
}

std::uint32_t PlainCrc(std::uint32_t crc, const Bytes& bytes) {
  return ravo::utils::UpdateCrc32Braided(crc, std::as_bytes(std::span(bytes)));
}

std::uint32_t ZlibCrc(std::uint32_t crc, const Bytes& bytes) {
  return static_cast<std::uint32_t>(crc32(crc, bytes.data(), static_cast<uInt>(bytes.size())));
}

std::uint32_t LibdeflateCrc(std::uint32_t crc, const Bytes& bytes) {
  return libdeflate_crc32(crc, bytes.data(), bytes.size());
}

void RegisterSize(const std::string& text, std::size_t size) {
  Register("crc32_" + text + "/ravo", size, OurCrc);
  Register("crc32_" + text + "/libdeflate", size, LibdeflateCrc);
  Register("crc32_" + text + "/zlib", size, ZlibCrc);
  Register("crc32_plain_" + text + "/ravo", size, PlainCrc);
  Register("crc32_plain_" + text + "/zlib", size, ZlibCrc);
}

}  // namespace

int main(int argc, char** argv) {
  RegisterSize("64B", 64);
  RegisterSize("4KiB", 4096);
  RegisterSize("1MiB", 1 << 20);
  return ravo::bench::RunWithRatios(argc, argv);
}
