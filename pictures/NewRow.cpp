#include "pictures/NewRow.h"

#include "pictures/PictureSlots.h"
#include "pictures/PictureToAdd.h"
#include "state/State.h"

namespace {

// Where new pictures are laid, in pixels of the journal window's client area.
constexpr std::int32_t Gap = 16;
constexpr std::int32_t FirstTop = 42;
constexpr std::int32_t WrappedTop = 40;
constexpr std::int32_t NewLeft = 400;

const JournalEntry& OpenJournal() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}

// Those whose files have gone as well.
std::vector<const PagePicture*> PicturesOfThePage() {
  std::vector<const PagePicture*> rows;
  for (std::size_t row = 1; row < Pictures.size(); ++row) {
    const PagePicture& picture = Pictures[row];
    if (picture.PageNumber == CurrentPage && picture.Deleted != True &&
        picture.JournalFile == OpenJournal().FileName)
      rows.push_back(&picture);
  }
  return rows;
}

// Below the pictures of the page, one under the other by their heights alone, wherever they were dragged to;
// from the top again where the window ends.
std::int32_t NextTop() {
  std::int64_t top = 0;
  for (const PagePicture* picture : PicturesOfThePage()) {
    top += std::int64_t{picture->PictureHeight} + Gap;
    if (PageClientHeight() < top) top = WrappedTop;
  }
  return top == 0 ? FirstTop : static_cast<std::int32_t>(top);
}

void FillRow(PagePicture& row, const std::string& frameFile, std::int32_t top) {
  row.JournalName = OpenJournal().Name;
  row.JournalFile = OpenJournal().FileName;
  row.PageNumber = CurrentPage;
  row.PictureFile = AddFile;
  row.PictureWidth = AddWidth;
  row.PictureHeight = AddHeight;
  row.FrameIndex = AddFrameIndex;
  row.FrameFile = frameFile;
  row.Top = top;
  row.Left = NewLeft;
}

}  // namespace

bool PageIsFull() {
  return PicturesOfThePage().size() >= PictureSlots::Count;
}

void MakeRow(const std::string& frameFile) {
  const std::int32_t top = NextTop();
  ++PictureCount;
  Pictures.resize(static_cast<std::size_t>(PictureCount) + 1);
  FillRow(Pictures.back(), frameFile, top);
}
