#include "handles.h"
#include "support.h"
#include <ravo/utils/random.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <span>
#include <vector>

using ravo::c::BytesIn;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::Guarded;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::TextIn;
using ravo::c::WriteText;
using Twister = ravo::DIUtils::TMT19937;

struct ravo_random : ravo::c::Handle {
  explicit ravo_random(const Twister& seeded) : twister(seeded) {}
  Twister twister;
};

namespace {

template <class Seed>
ravo_status OpenRandom(const Seed& seed, ravo_random** random, ravo_error* error) {
  return Guarded(error, [&] {
    *random = std::make_unique<ravo_random>(Twister(seed)).release();
    return RAVO_OK;
  });
}

template <class Number>
ravo_status Draw(ravo_random* random, Number (Twister::*next)(), Number* number, ravo_error* error) {
  if (!IsOpen(random)) return FailArgument(error, "the generator is null or closed");
  if (number == nullptr) return FailNullResult(error);
  return Guarded(error, [&] {
    *number = (random->twister.*next)();
    return RAVO_OK;
  });
}

// The characters of a text that is well-formed UTF-8.
std::vector<std::string_view> CharactersOf(std::string_view text) {
  std::vector<std::string_view> characters;
  for (std::size_t at = 0; at < text.size(); at += characters.back().size()) {
    std::size_t end = at + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
    characters.push_back(text.substr(at, end - at));
  }
  return characters;
}

std::string DrawnText(Twister& twister, std::span<const std::string_view> alphabet, std::size_t count) {
  std::string text;
  text.reserve(count);
  for (std::size_t i = 0; i < count; ++i) text += alphabet[twister.genrand_int32() % alphabet.size()];
  return text;
}

}  // namespace

ravo_status ravo_random_open(uint32_t seed, ravo_random** random, ravo_error* error) {
  if (random == nullptr) return FailNullResult(error);
  return OpenRandom(seed, random, error);
}

ravo_status ravo_random_open_array(const uint32_t* keys, size_t keys_length, ravo_random** random,
                                   ravo_error* error) {
  if (random == nullptr) return FailNullResult(error);
  if (keys_length == RAVO_NUL_TERMINATED || (keys == nullptr && keys_length != 0))
    return FailArgument(error, "the keys are null, or have no length");
  return OpenRandom(std::span(keys, keys_length), random, error);
}

ravo_status ravo_random_open_bytes(const void* bytes, size_t bytes_length, ravo_random** random,
                                   ravo_error* error) {
  if (random == nullptr) return FailNullResult(error);
  const BytesIn seed = ReadBytes(bytes, bytes_length, error);
  if (seed.status != RAVO_OK) return seed.status;
  return OpenRandom(seed.bytes, random, error);
}

void ravo_random_close(ravo_random* random) { ravo::c::Close(random); }

ravo_status ravo_random_int31(ravo_random* random, uint32_t* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_int31, number, error);
}

ravo_status ravo_random_int32(ravo_random* random, uint32_t* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_int32, number, error);
}

ravo_status ravo_random_int63(ravo_random* random, int64_t* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_int63, number, error);
}

ravo_status ravo_random_int64(ravo_random* random, int64_t* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_int64, number, error);
}

ravo_status ravo_random_real1(ravo_random* random, double* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_real1, number, error);
}

ravo_status ravo_random_real2(ravo_random* random, double* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_real2, number, error);
}

ravo_status ravo_random_real3(ravo_random* random, double* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_real3, number, error);
}

ravo_status ravo_random_res53(ravo_random* random, double* number, ravo_error* error) {
  return Draw(random, &Twister::genrand_res53, number, error);
}

ravo_status ravo_random_text(ravo_random* random, const char* alphabet, size_t alphabet_length, size_t count,
                             char* buffer, size_t size, size_t* length, ravo_error* error) {
  if (!IsOpen(random)) return FailArgument(error, "the generator is null or closed");
  const TextIn letters = ReadText(alphabet, alphabet_length, error);
  if (letters.status != RAVO_OK) return letters.status;
  if (letters.text.empty() && count != 0) return FailArgument(error, "the alphabet is empty");
  // No character has more than four bytes.
  if (count > std::numeric_limits<std::ptrdiff_t>::max() / 4) return FailRange(error, "the text is too long");
  return Guarded(error, [&] {
    Twister twister = random->twister;
    const std::string text = DrawnText(twister, CharactersOf(letters.text), count);
    const ravo_status status = WriteText({buffer, size, length}, text, error);
    if (status == RAVO_OK && buffer != nullptr) random->twister = twister;
    return status;
  });
}
