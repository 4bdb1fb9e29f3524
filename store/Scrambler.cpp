#include "store/Scrambler.h"

#include <random>

#include "platform/Failure.h"

namespace {

constexpr int raise = 4;

// Never seeded: the filler is never read back, so nothing depends on it.
char NextFiller() {
  static std::minstd_rand generator;
  return static_cast<char>(30 + generator() % 120);
}

char CharacterOf(int code) {
  if (code < 0 || code > 255) throw platform::Failure(platform::FailureKind::InvalidArgument);
  return static_cast<char>(code);
}

int CodeAt(std::string_view text, std::size_t position) {
  if (position >= text.size()) throw platform::Failure(platform::FailureKind::InvalidArgument);
  return static_cast<unsigned char>(text[position]);
}

}  // namespace

std::string ScrambleText(std::string_view text) {
  std::string scrambled;
  std::string pair;  // outlives its turn: a character that cannot be formed leaves the pair before it here
  for (const char character : text) {
    const int code = static_cast<unsigned char>(character) + raise;
    platform::Guarded("Encryption Error:", [&] { pair = {NextFiller(), CharacterOf(code)}; });
    scrambled += pair;
  }
  return scrambled;
}

std::string UnscrambleText(std::string_view text) {
  std::string plain;
  int code = 0;  // outlives its turn, as the pair does above
  for (std::size_t i = 0; i < text.size(); i += 2) {
    platform::Guarded("Decryption Error:", [&] { code = CodeAt(text, i + 1) - raise; });
    platform::Guarded("Decryption Error:", [&] { plain += CharacterOf(code); });
  }
  return plain;
}
