// The pictures of a page go into the export as files beside it, without their places and frames.
#include "output/CopyFile.h"
#include "output/HtmlSections.h"
#include "output/WebText.h"
#include "platform/files/Files.h"
#include "state/State.h"

namespace {

// What stands behind the last separator of either kind: diaries come from systems with both.
std::string PlainName(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

bool LiesOnCurrentPage(const PagePicture& picture) {
  return picture.PageNumber == CurrentPage &&
         picture.JournalFile == Journals.at(static_cast<std::size_t>(CurrentJournal)).FileName;
}

// No other name leads out of the folder, or to the folder itself.
bool CanBeCopied(const PagePicture& picture) {
  const std::string name = PlainName(picture.PictureFile);
  return platform::FileExists(picture.PictureFile) && !name.empty() && name != "." && name != "..";
}

std::string TagOf(const PagePicture& picture, bool isFirst) {
  const std::string name = WebFileName(PlainName(picture.PictureFile));
  return "<a href=\"" + name + "\"><img src=\"" + name + "\"  " + (isFirst ? "align=left " : "") +
         "width=" + std::to_string(picture.PictureWidth) +
         " height=" + std::to_string(picture.PictureHeight) + " border=0></a>";
}

}  // namespace

void WriteHtmlPictures(const std::vector<std::int32_t>& rows, const std::string& folder,
                       const std::string& path) {
  bool isFirst = true;
  for (const std::int32_t row : rows) {
    const PagePicture& picture = Pictures.at(static_cast<std::size_t>(row));
    if (!LiesOnCurrentPage(picture) || picture.Deleted == True || !CanBeCopied(picture)) continue;
    CopyFile(picture.PictureFile, folder + "/" + PlainName(picture.PictureFile));
    WriteHtmlLine(TagOf(picture, isFirst), path);
    isFirst = false;
  }
}
