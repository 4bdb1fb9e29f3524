#include "store/Scrambler.h"

#include <random>

#include "platform/Failure.h"
#include "platform/dialogs/ReportFailure.h"

namespace {

constexpr int raise = 4;

// Never seeded: the filler is never read back, so nothing depends on it.
std::minstd_rand& Fillers() {
  static std::minstd_rand generator;
  return generator;
}

char NextFiller(std::minstd_rand& generator) {
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

template <class Guard>
std::string Scrambled(std::string_view text, std::minstd_rand& fillers, Guard&& guarded) {
  std::string scrambled;
  std::string pair;  // outlives its turn: a character that cannot be formed leaves the pair before it here
  for (const char character : text) {
    const int code = static_cast<unsigned char>(character) + raise;
    guarded([&] { pair = {NextFiller(fillers), CharacterOf(code)}; });
    scrambled += pair;
  }
  return scrambled;
}

}  // namespace

std::string ScrambleText(std::string_view text) {
  return Scrambled(text, Fillers(),
                   [](auto&& statement) { platform::Guarded("Encryption Error:", statement); });
}

std::string ScrambleTextAside(std::string_view text) {
  std::minstd_rand fillers = Fillers();
  return Scrambled(text, fillers, [](auto&& statement) {
    try {
      statement();
    } catch (const platform::Failure&) {
      // The pair before it is repeated, as ever.
    }
  });
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
