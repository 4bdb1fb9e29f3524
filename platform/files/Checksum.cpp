#include "platform/files/Checksum.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace platform {
namespace {

constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;  // its bits are in no order

std::uint64_t Mixed(std::uint64_t lane, std::uint64_t word) {
  return std::rotl((lane ^ word) * odd, 29);
}

}  // namespace

void Checksum::AddBlock(Lanes& lanes, const char* block) {
  for (std::size_t lane = 0; lane < laneCount; ++lane) {
    std::uint64_t word = 0;
    std::memcpy(&word, block + lane * sizeof word, sizeof word);
    lanes[lane] = Mixed(lanes[lane], word);
  }
}

// Fills the block that was begun, as far as the bytes reach; returns those that are left.
std::string_view Checksum::FillBlock(std::string_view bytes) {
  const std::size_t taken = std::min(bytes.size(), blockSize - begunSize_);
  std::copy_n(bytes.data(), taken, begun_.data() + begunSize_);
  begunSize_ += taken;
  if (begunSize_ == blockSize) {
    AddBlock(lanes_, begun_.data());
    begun_ = {};
    begunSize_ = 0;
  }
  return bytes.substr(taken);
}

void Checksum::Add(std::string_view bytes) {
  length_ += bytes.size();
  if (begunSize_ > 0) bytes = FillBlock(bytes);
  Lanes lanes = lanes_;  // in registers
  for (; bytes.size() >= blockSize; bytes.remove_prefix(blockSize)) AddBlock(lanes, bytes.data());
  lanes_ = lanes;
  if (!bytes.empty()) FillBlock(bytes);
}

std::uint64_t Checksum::value() const {
  Lanes lanes = lanes_;
  AddBlock(lanes, begun_.data());
  std::uint64_t value = length_;
  for (const std::uint64_t lane : lanes) value = Mixed(value, lane);
  return value;
}

}  // namespace platform
