#include "richtext/textdocument/DocumentCopy.h"

#include <numeric>

#include <QtGui/QTextDocument>

#include "richtext/textdocument/Pictures.h"

namespace richtext {
namespace {

// Blocks, their pieces of one format and kilobytes of pictures: about a millisecond.
constexpr std::size_t WorkOfAPart = 2048;

// As it stands in a part; none where it does not.
ComposedWord WordIn(int at, int length, const ComposedWord& word) {
  if (word.text.isEmpty() || word.at < at || word.at >= at + length) return {};
  return {word.text, word.at - at, word.format};
}

}  // namespace

// A change at a part's edge may have joined a paragraph with the one before or behind it. What an earlier
// change has cut off as a small part joins the larger one again.
void DocumentCopy::NoteChange(int at, int removed, int added) {
  int begin = 0;
  auto first = parts_.begin();
  while (first != parts_.end() && begin + first->length < at) begin += first++->length;
  int end = begin;
  auto last = first;
  while (last != parts_.end() && end <= at + removed) end += last++->length;
  if (last != parts_.end() && last->work < WorkOfAPart / 2) end += last++->length;
  parts_.insert(parts_.erase(first, last), Part{end - begin + added - removed, 0, {}, nullptr});
}

// The toolkit sometimes tells of more than has changed. Where its lengths do not add up, the copying begins
// anew.
bool DocumentCopy::Refresh(const QDeadlineTimer& until, const ComposedWord& word) {
  if (Length() != source_.characterCount()) parts_.assign(1, Part{source_.characterCount(), 0, {}, nullptr});
  int at = 0;
  for (std::size_t index = 0; index < parts_.size(); at += parts_[index++].length) {
    const Part& part = parts_[index];
    if (part.page && part.word == WordIn(at, part.length, word)) continue;
    if (until.hasExpired() || !(until.isForever() || AreFilesMade(source_))) return false;
    Take(index, at, word);
  }
  return true;
}

int DocumentCopy::Length() const {
  return std::accumulate(parts_.begin(), parts_.end(), 0,
                         [](int length, const Part& part) { return length + part.length; });
}

void DocumentCopy::Take(std::size_t index, int at, const ComposedWord& word) {
  const int length = parts_[index].length;
  TakenPart taken = TakePart(source_, at, length, WorkOfAPart, word);
  parts_[index] = {taken.length, taken.work, WordIn(at, taken.length, word),
                   std::make_shared<const Document>(std::move(taken.page))};
  if (taken.length < length)
    parts_.insert(parts_.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                  Part{length - taken.length, 0, {}, nullptr});
}

PageParts DocumentCopy::Parts() const {
  PageParts parts;
  for (const Part& part : parts_) parts.push_back(part.page);
  return parts;
}

}  // namespace richtext
