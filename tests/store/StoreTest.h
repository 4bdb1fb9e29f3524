// Bytes written by hand.
#pragma once

#include "store/PageCipher.h"
#include "tests/support/Fixtures.h"

// The lowest `size` bytes of a number, the lowest first.
inline std::string Raw(std::int64_t number, int size) {
  const auto bits = static_cast<std::uint64_t>(number);
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(bits >> (8 * i));
  return bytes;
}
inline std::string Counted(std::string_view text) {
  return Raw(std::ssize(text), 2) += text;
}
// Every second byte, the fillers left out.
inline std::string WithoutFillers(std::string_view text, std::size_t first) {
  std::string kept;
  for (std::size_t i = first; i < text.size(); i += 2) kept += text[i];
  return kept;
}
inline std::string Sample(const std::string& path) {
  return platform::ReadFile(std::string(TEST_SAMPLES) + "/" + path);
}
inline std::string Deciphered(std::string_view body, int shift) {
  std::string plain(body.size() / 2, '\0');
  store::Decipher(body, shift, plain.data());
  return plain;
}
