// The guarded routines tell a failure and go on with their next statement. A pass ends before a failure in it
// is told; look/Pass.h says why.
#include "editor/PagePasses.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "editor/AlienPage.h"
#include "editor/PageFace.h"
#include "editor/SavingPages.h"
#include "look/Pass.h"
#include "look/frmWait.h"
#include "pictures/PictureSlots.h"
#include "platform/Failure.h"
#include "platform/dialogs/ReportFailure.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"
#include "store/PageCipher.h"
#include "store/UnstoredRows.h"

namespace {

// Longer bodies, and longer texts, get the progress window.
constexpr std::size_t LongPass = 10'000;
// Characters between two looks at the clock: far less work than a frame lasts.
constexpr std::size_t Chunk = std::size_t{64} * 1024;

// Bytes of RTF whose laying out outlasts a frame by far. No event is served meanwhile.
constexpr std::size_t LongLayout = std::size_t{256} * 1024;

constexpr std::string_view DecryptionError = "Page Decryption Error:";
constexpr std::string_view EncryptionError = "Page Encryption Error:";

JournalPage& PageRow(std::int32_t row) {
  if (row < 0 || static_cast<std::size_t>(row) >= Pages.size())
    throw platform::Failure(platform::FailureKind::SubscriptOutOfRange);
  return Pages[static_cast<std::size_t>(row)];
}

void ShowProgress(std::size_t position) {
  constexpr std::size_t most = std::numeric_limits<int>::max();
  look::The<look::frmWait>().ProgressBar1->setValue(static_cast<int>(std::min(position, most)));
}

// "Decrypting page: 19 kb"
void AnnouncePass(const QString& what, std::size_t length) {
  constexpr std::size_t most = std::numeric_limits<int>::max();
  look::frmWait& wait = look::The<look::frmWait>();
  wait.ProgressBar1->setRange(0, static_cast<int>(std::min(length, most)));
  wait.ProgressBar1->setValue(0);
  wait.lblInfo->setText(QStringLiteral("%1 %2 kb").arg(what).arg(length / 1024));
  if (length > LongPass) wait.ShowSoon();
}

void EndProgress() {
  look::The<look::frmWait>().HideNow();
}

// Carries out `step` for each chunk of `length` characters, with the windows alive in between.
template <class Step>
void PassOver(std::size_t length, Step&& step) {
  look::Pass pass;
  for (std::size_t at = 0; at < length; at += Chunk) {
    step(at, std::min(Chunk, length - at));
    if (length <= LongPass) continue;
    ShowProgress(at);
    pass.Yield();
  }
}

// A body of odd length lacks only its last filler, which nobody reads.
std::string Deciphered(std::string body) {
  if (body.size() % 2 != 0) body.push_back(' ');
  std::string plain(body.size() / 2, '\0');
  PassOver(body.size(), [&](std::size_t at, std::size_t length) {
    store::Decipher(std::string_view(body).substr(at, length), PageShift, plain.data() + at / 2);
  });
  return plain;
}

std::string Enciphered(std::string_view plain) {
  std::string body(plain.size() * 2, '\0');
  PassOver(plain.size(), [&](std::size_t at, std::size_t length) {
    store::Encipher(plain.substr(at, length), PageShift, body.data() + at * 2);
  });
  return body;
}

// From here on the text box's text belongs to the current page, if that came out and could be set at all.
void SetPageText(const std::optional<std::string>& plain) {
  PageInHand::TextLeaves();
  const std::string_view rtf = plain ? std::string_view(*plain) : std::string_view();
  if (rtf.size() > LongLayout) look::The<look::frmWait>().ShowNow();
  Face().txtM->setReadOnly(false);
  Face().txtM->SetTextRTF(rtf);
  if (plain) PageInHand::TextIsIn();
  Face().txtM->setReadOnly(IsAlienPage(CurrentPage));
}

// The pictures, the text and the header of a page come to the screen together: until this goes, the page
// before stays there as it was.
class HeldScreen {
 public:
  HeldScreen() { Face().setUpdatesEnabled(false); }
  ~HeldScreen() { Face().setUpdatesEnabled(true); }
  Q_DISABLE_COPY_MOVE(HeldScreen)
};

// Once another journal is chosen, it is that one's file which a save would write.
bool IsTextOfOpenJournal() {
  return PagesJournal != 0 && PagesJournal == CurrentJournal && TextPage >= 0;
}

// A blank page counts as changed, but nobody would miss its blank document.
bool IsBlankPage() {
  return PageRow(TextPage).Body.empty() && Face().txtM->document()->isEmpty();
}

void ShowPageAndPictures() {
  const auto guarded = [](auto&& statement) { platform::Guarded(DecryptionError, statement); };
  const HeldScreen held;
  PageInHand::TextLeaves();
  std::optional<std::string> body;
  guarded([&] { body = PageRow(CurrentPage).Body; });
  guarded([] { ShowPagePictures(); });
  const std::size_t length = body ? body->size() : 0;
  std::optional<std::string> plain;
  if (length != 0) {
    guarded([&] { AnnouncePass(QStringLiteral("Decrypting page:"), length); });
    guarded([&] { plain = Deciphered(std::move(*body)); });
  } else if (body) {
    plain.emplace();
  }
  guarded([&] { SetPageText(plain); });
  if (length == 0) return;  // an empty page counts as changed
  PageInHand::TextIsAsStored();
  guarded(EndProgress);
}

// Stores the text box's text into the row that it came from. Whether that is saved, or on its way. The log,
// which may be asked first, takes it from the row.
bool StoreText() {
  if (PageDirty == False || !IsTextOfOpenJournal() || ShowsAlienPage()) return false;
  const auto guarded = [](auto&& statement) { platform::Guarded(EncryptionError, statement); };
  std::string text;
  guarded([&] { text = Face().txtM->TextRTF(); });
  if (text.empty()) return false;
  guarded([&] { AnnouncePass(QStringLiteral("Encrypting page:"), text.size()); });
  guarded([&] {
    std::string body = Enciphered(text);
    store::RowWillChange(TextPage, !IsBlankPage());
    PageRow(TextPage).Body = std::move(body);
    PageInHand::TextIsAsStored();  // otherwise it is in the box alone, and must be stored yet
  });
  bool isSaved = false;
  guarded([&] { isSaved = SaveOpenJournal(); });
  guarded(EndProgress);
  return isSaved;
}

}  // namespace

void ShowCurrentPage() {
  ShowPageAndPictures();
  TellAlienPage();
}

bool StoreCurrentPage() {
  Face().txtM->CommitComposition();
  return TextPage == CurrentPage && StoreText();
}

bool IsTextUnstored() {
  return PagesJournal != 0 && PageDirty != False && TextPage >= 0 && !IsBlankPage() && !ShowsAlienPage();
}

bool IsAnythingUnstored() {
  return PagesJournal != 0 && (store::AreRowsMissed() || IsTextUnstored());
}

bool StoreOpenPage() {
  AwaitSaving();
  if (PagesJournal == 0 || !Face().window()->isVisible()) return false;
  Face().txtM->TakeComposition();
  bool isSaved = false;
  if (PageDirty == False && PagesUnsaved)
    platform::Guarded(EncryptionError, [&] { isSaved = SaveOpenJournal(); });
  isSaved = StoreText() || isSaved;
  AwaitSaving();
  return isSaved;
}

std::string GetPlainPage(std::int32_t page) {
  const auto guarded = [](auto&& statement) { platform::Guarded(DecryptionError, statement); };
  std::string body;
  guarded([&] { body = PageRow(page).Body; });
  const bool isLong = body.size() > LongPass;
  if (isLong) guarded([&] { AnnouncePass(QStringLiteral("Decrypting page:"), body.size()); });
  std::string plain;
  guarded([&] { plain = Deciphered(std::move(body)); });
  if (isLong) guarded(EndProgress);
  return plain;
}
