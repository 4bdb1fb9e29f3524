// A long file handed out in small fields, without ever holding it whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace store {

// Gives up to `size` next bytes; fewer only at the end.
using ByteSource = std::function<std::size_t(char* buffer, std::size_t size)>;

class PieceReader {
 public:
  // `size` is the number of bytes that the source has. Both must outlive the reader.
  PieceReader(const ByteSource& source, std::uint64_t size);

  // Bytes that are still to come; 0 as soon as the source has turned out to have fewer than it promised.
  std::uint64_t left() const { return left_; }

  // Up to `size` bytes; fewer only at the end.
  std::size_t ReadUpTo(char* to, std::size_t size);
  // Exactly `size` bytes, or false.
  bool Read(char* to, std::size_t size) { return ReadUpTo(to, size) == size; }
  // Exactly `size` bytes into an empty string, which takes no more memory than they need. False when there
  // are fewer; a size beyond what is left costs no memory.
  bool ReadText(std::string& to, std::uint64_t size);

 private:
  // The next bytes, at most `most` and at least one; none at the end.
  std::string_view Next(std::size_t most);

  const ByteSource& source_;
  std::uint64_t left_;
  std::unique_ptr<char[]> piece_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace store
