#include "store/PieceReader.h"

#include <algorithm>
#include <cstring>

namespace store {
namespace {

// Stays in the processor's cache, and still makes one read a matter of many pages.
constexpr std::size_t pieceSize = std::size_t{128} * 1024;

}  // namespace

PieceReader::PieceReader(const ByteSource& source, std::uint64_t size)
    : source_(source), left_(size), piece_(std::make_unique_for_overwrite<char[]>(pieceSize)) {}

std::string_view PieceReader::Next(std::size_t most) {
  if (begin_ == end_) {
    begin_ = 0;
    end_ = source_(piece_.get(), static_cast<std::size_t>(std::min<std::uint64_t>(left_, pieceSize)));
    if (end_ == 0) left_ = 0;
  }
  const std::size_t size = std::min(most, end_ - begin_);
  const std::string_view next(piece_.get() + begin_, size);
  begin_ += size;
  left_ -= size;
  return next;
}

std::size_t PieceReader::ReadUpTo(char* to, std::size_t size) {
  std::size_t done = 0;
  while (done < size && left_ > 0) {
    const std::string_view next = Next(size - done);
    std::memcpy(to + done, next.data(), next.size());
    done += next.size();
  }
  return done;
}

bool PieceReader::ReadText(std::string& to, std::uint64_t size) {
  if (size > left_) return false;
  to.reserve(static_cast<std::size_t>(size));
  while (to.size() < size && left_ > 0) to += Next(static_cast<std::size_t>(size) - to.size());
  return to.size() == size;
}

}  // namespace store
