#include "pictures/PageRows.h"

#include <algorithm>

#include "platform/files/Files.h"
#include "state/State.h"

namespace {

// The toolkit's own limit for a control's size, and far beyond any screen as a place.
constexpr int MostPixels = 16'000'000;

bool BelongsTo(std::int32_t page, const PagePicture& picture, const std::string& journalFile) {
  return picture.PageNumber == page && picture.JournalFile == journalFile && picture.Deleted != True &&
         platform::FileExists(picture.PictureFile);
}

}  // namespace

PagePicture& PictureRow(std::int32_t row) {
  return Pictures.at(static_cast<std::size_t>(row));
}

std::vector<std::int32_t> PictureRowsOf(std::int32_t page) {
  const std::string& journalFile = Journals.at(static_cast<std::size_t>(CurrentJournal)).FileName;
  std::vector<std::int32_t> rows;
  for (std::int32_t row = 1; row <= PictureCount; ++row)
    if (BelongsTo(page, PictureRow(row), journalFile)) rows.push_back(row);
  return rows;
}

QPoint PlaceOf(const PagePicture& picture) {
  return {std::clamp(picture.Left, -MostPixels, MostPixels),
          std::clamp(picture.Top, -MostPixels, MostPixels)};
}

QSize SizeOf(const PagePicture& picture) {
  return {std::clamp(picture.PictureWidth, 0, MostPixels), std::clamp(picture.PictureHeight, 0, MostPixels)};
}
