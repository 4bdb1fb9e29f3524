#include "store/FileCheck.h"

#include <array>

#include "store/Bytes.h"

namespace store {
namespace {

using Table = std::array<std::uint32_t, 256>;

// Table k tells what a byte does to the check when k more bytes come behind it. So eight bytes are looked up
// beside each other, where one alone would wait for the one before it.
constexpr std::array<Table, 8> MakeTables() {
  constexpr std::uint32_t polynomial = 0xEDB88320;  // its bits in reverse, the highest power lowest
  std::array<Table, 8> tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ (crc % 2 != 0 ? polynomial : 0);
    tables[0][byte] = crc;
  }
  for (std::size_t k = 1; k < tables.size(); ++k)
    for (std::size_t byte = 0; byte < 256; ++byte)
      tables[k][byte] = (tables[k - 1][byte] >> 8) ^ tables[0][tables[k - 1][byte] % 256];
  return tables;
}

constexpr std::array<Table, 8> tables = MakeTables();

std::uint32_t AfterEight(std::uint32_t crc, const char* bytes) {
  const std::uint64_t eight = LoadNumber<std::uint64_t>(bytes) ^ crc;
  std::uint32_t after = 0;
  for (std::size_t k = 0; k < 8; ++k) after ^= tables[7 - k][(eight >> (8 * k)) % 256];
  return after;
}

}  // namespace

std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (; bytes.size() >= 8; bytes.remove_prefix(8)) crc = AfterEight(crc, bytes.data());
  for (const char byte : bytes) crc = (crc >> 8) ^ tables[0][(crc ^ static_cast<unsigned char>(byte)) % 256];
  return ~crc;
}

FileCheck CheckOf(std::string_view bytes) {
  return {bytes.size(), Crc32(bytes)};
}

}  // namespace store
