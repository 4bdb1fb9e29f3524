// A short mark of many bytes, by which other bytes are told from them, as fast as memory is read. It is no
// protection against somebody who makes bytes for a given mark.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace platform {

class Checksum {
 public:
  // However the bytes are cut into pieces, their mark is the same.
  void Add(std::string_view bytes);
  // Of all bytes so far, and of how many they are.
  std::uint64_t value() const;

 private:
  static constexpr std::size_t laneCount = 4, blockSize = laneCount * sizeof(std::uint64_t);

  // Lanes that do not wait for one another keep the processor's multiplier busy.
  using Lanes = std::array<std::uint64_t, laneCount>;
  static void AddBlock(Lanes& lanes, const char* block);
  std::string_view FillBlock(std::string_view bytes);

  Lanes lanes_ = {1, 2, 3, 4};
  std::array<char, blockSize> begun_{};  // a block that is not full yet; zeros behind its bytes
  std::size_t begunSize_ = 0;
  std::uint64_t length_ = 0;
};

}  // namespace platform
