#include "store/JournalPieces.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "platform/Failure.h"
#include "state/State.h"
#include "store/Bytes.h"
#include "store/Scrambler.h"

namespace store {
namespace {

using namespace journalformat;
using platform::Failure;
using platform::FailureKind;

std::string PasswordBlock(std::string_view scrambledPassword) {
  std::string text = ScrambleText(scrambledPassword);
  if (text.size() > passwordBlockSize) {
    throw Failure(FailureKind::InvalidArgument, "the password is too long for a journal file");
  }
  text.resize(passwordBlockSize, ' ');
  return text;
}

}  // namespace

JournalPieces::JournalPieces(const std::vector<JournalPage>& pages, std::string_view scrambledPassword) {
  if (pages.empty()) throw Failure(FailureKind::SubscriptOutOfRange);
  fields_.reserve(headerSize + (2 + 4 + dateSize) * pages.size());
  pieces_.reserve(2 * pages.size() + 1);
  fields_ += magic;
  fields_ += PasswordBlock(scrambledPassword);
  AppendNumber(fields_, static_cast<std::int32_t>(pages.size() - 1));
  for (const JournalPage& page : pages) AddPage(page);
  EndFields();
}

std::size_t JournalPieces::size() const {
  return std::accumulate(pieces_.begin(), pieces_.end(), std::size_t{0},
                         [](std::size_t sum, std::string_view piece) { return sum + piece.size(); });
}

void JournalPieces::AddPage(const JournalPage& page) {
  const std::size_t length = page.Body.size();
  if (length > std::numeric_limits<std::uint32_t>::max()) {
    throw Failure(FailureKind::InvalidArgument, "a page is too long for a journal file");
  }
  AppendNumber(fields_, static_cast<std::uint16_t>(std::min<std::size_t>(length, longBodyMark)));
  if (length >= longBodyMark) AppendNumber(fields_, static_cast<std::uint32_t>(length));
  EndFields();
  pieces_.push_back(page.Body);
  AppendDouble(fields_, page.PageDate);
}

void JournalPieces::EndFields() {
  pieces_.push_back(std::string_view(fields_).substr(begun_));
  begun_ = fields_.size();
}

}  // namespace store
