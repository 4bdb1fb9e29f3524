// The bytes of the data files, from the samples, and changed by hand.
#pragma once

#include "platform/files/InputFile.h"
#include "store/PageCipher.h"
#include "tests/support/Fixtures.h"

inline std::string Sample(const std::string& path) {
  return platform::ReadFile(fixture::PathOfSample(path));
}
// The bytes with a number of 32 bits at a place, the lowest byte first.
inline std::string With(std::string bytes, std::size_t place, std::uint32_t number) {
  for (std::size_t i = 0; i < 4; ++i) bytes.at(place + i) = static_cast<char>(number >> (8 * i));
  return bytes;
}
inline std::string Deciphered(std::string_view body, int shift) {
  std::string plain(body.size() / 2, '\0');
  store::Decipher(body, shift, plain.data());
  return plain;
}
