// A page is read and written at the speed of the memory, so the loops below are written for the compiler to
// turn into vector code: bytes only, no branch, and a carry in place of the comparison with 255. Lowering a
// sum by 255 is the same as dropping its ninth bit and adding that bit at the other end, and the way back
// takes it away again.
//
// The filler comes from a row of small generators that step side by side, one block of filler a step.

#include "store/PageCipher.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <tuple>

namespace store {
namespace {

using Byte = std::uint8_t;

constexpr std::size_t lanes = 16;
constexpr std::size_t block = lanes * sizeof(std::uint32_t);

using Generators = Filler;
static_assert(std::tuple_size_v<Filler> == lanes);

constexpr Generators FirstGenerators() {
  Generators generators{};
  std::uint32_t seed = 0x2545F491;
  for (std::uint32_t& generator : generators) generator = seed = seed * 1664525 + 1013904223;
  return generators;
}

void Step(Generators& generators) {
  for (std::uint32_t& x : generators) {
    x ^= x << 13;
    x ^= x >> 17;
    x ^= x << 5;
  }
}

inline void EncipherBytes(const Byte* plain, std::size_t size, Byte shift, const Byte* noise, Byte* body) {
  for (std::size_t i = 0; i < size; ++i) {
    const Byte sum = static_cast<Byte>(plain[i] + shift);
    body[2 * i] = static_cast<Byte>(sum + (sum < shift));
    body[2 * i + 1] = static_cast<Byte>(30 + ((noise[i] * 120) >> 8));
  }
}

Generators& KeptGenerators() {
  static Generators kept = FirstGenerators();
  return kept;
}

Generators EncipherFrom(Generators generators, std::string_view plain, std::int32_t shift, char* body) {
  const auto* from = reinterpret_cast<const Byte*>(plain.data());
  auto* to = reinterpret_cast<Byte*>(body);
  const auto key = static_cast<Byte>(shift);
  Byte noise[block];
  for (std::size_t left = plain.size(); left > 0;) {
    Step(generators);
    std::memcpy(noise, generators.data(), block);
    const std::size_t size = std::min(left, block);
    if (size == block) {
      EncipherBytes(from, block, key, noise, to);  // a length that the compiler knows
    } else {
      EncipherBytes(from, size, key, noise, to);
    }
    from += size;
    to += 2 * size;
    left -= size;
  }
  return generators;
}

}  // namespace

void Decipher(std::string_view body, std::int32_t shift, char* plain) {
  const auto* from = reinterpret_cast<const Byte*>(body.data());
  auto* to = reinterpret_cast<Byte*>(plain);
  const auto key = static_cast<Byte>(shift);
  for (std::size_t i = 0, size = body.size() / 2; i < size; ++i) {
    const Byte code = from[2 * i];
    to[i] = static_cast<Byte>(code - key - (code < key));
  }
}

// Goes on where the call before it stopped.
void Encipher(std::string_view plain, std::int32_t shift, char* body) {
  KeptGenerators() = EncipherFrom(KeptGenerators(), plain, shift, body);
}

Filler NextFiller() {
  return KeptGenerators();
}

void EncipherAside(std::string_view plain, std::int32_t shift, const Filler& filler, char* body) {
  EncipherFrom(filler, plain, shift, body);
}

}  // namespace store
