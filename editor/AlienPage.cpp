#include "editor/AlienPage.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "look/Pass.h"
#include "platform/CodePage.h"
#include "platform/dialogs/MessageBox.h"
#include "richtext/rtf/Reader.h"
#include "state/State.h"
#include "store/PageCipher.h"

namespace {

// Characters that are looked at.
constexpr std::size_t Start = 64;

const char* const Explanation =
    "%1 of this journal cannot be read here. It was written under a password with another last letter, in "
    "another bookcase.\n\n"
    "It is left as it is: what you see cannot be changed, and is not saved. The journal may have more such "
    "pages; they are treated alike.\n\n"
    "To read it, put the file %2 back into the bookcase that it comes from. If that is gone, copy the "
    "program "
    "and this file into a new folder, give there, at the first start, a password with the last letter of the "
    "old one, and start once more: the journal then stands in that bookcase.";

std::string StartOf(std::string_view body) {
  body = body.substr(0, std::min(2 * Start, body.size() / 2 * 2));
  std::string plain(body.size() / 2, '\0');
  store::Decipher(body, PageShift, plain.data());
  return plain;
}

// Other programs may have put blanks, or a mark of the encoding, before a document.
bool IsAlien(const JournalPage& page) {
  const std::string start = StartOf(page.Body);
  const std::size_t begin = start.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
  return begin != std::string::npos && !richtext::IsRtf(std::string_view(start).substr(begin));
}

QString NameOf(std::int32_t page) {
  return page == 0 ? QStringLiteral("The title page") : QStringLiteral("Page %1").arg(page);
}

}  // namespace

bool IsAlienPage(std::int32_t page) {
  return page >= 0 && static_cast<std::size_t>(page) < Pages.size() &&
         IsAlien(Pages[static_cast<std::size_t>(page)]);
}

bool ShowsAlienPage() {
  return IsAlienPage(TextPage);
}

// Not in a pass, as in an export: look/Pass.h tells what would wait behind the box.
void TellAlienPage() {
  if (AlienPageTold || look::Pass::InProgress() || !ShowsAlienPage()) return;
  AlienPageTold = true;
  const std::string& fileName = Journals.at(static_cast<std::size_t>(CurrentJournal)).FileName;
  const QString text = QString::fromLatin1(Explanation);
  platform::ShowMessage(text.arg(NameOf(TextPage), platform::FromCodePage(fileName)).toStdString());
}
