// A journal's file as it is to be written, and the parts of its layout that reading and writing share.
// docs/file-formats.md shows it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct JournalPage;

namespace store {

namespace journalformat {

inline constexpr std::string_view magic = "ZANDOLK JOURNAL FILE V00001";
inline constexpr std::size_t passwordBlockSize = 512;
inline constexpr std::size_t countOffset = magic.size() + passwordBlockSize;
inline constexpr std::size_t headerSize = countOffset + 4;
static_assert(headerSize == 543);
inline constexpr std::uint16_t longBodyMark = 0xFFFF;  // a 32-bit length follows
inline constexpr std::size_t dateSize = 8;

}  // namespace journalformat

// The file in pieces, in order: the bodies where they lie in `pages`, which must outlive this or live on in a
// copy, and between them the small fields, which lie here. A long journal is so never in memory twice.
class JournalPieces {
 public:
  // Throws SubscriptOutOfRange when there are no pages, and InvalidArgument when the password or a page is
  // too long.
  JournalPieces(const std::vector<JournalPage>& pages, std::string_view scrambledPassword);
  JournalPieces(const JournalPieces&) = delete;
  JournalPieces& operator=(const JournalPieces&) = delete;

  const std::vector<std::string_view>& pieces() const { return pieces_; }
  // The length of the whole file in bytes.
  std::size_t size() const;

 private:
  void AddPage(const JournalPage& page);
  // The fields since the last piece become one.
  void EndFields();

  std::string fields_;  // has room for all from the start, so that it never moves
  std::size_t begun_ = 0;
  std::vector<std::string_view> pieces_;
};

}  // namespace store
