#include "app/WaysOut.h"

#include <chrono>
#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>

#include "app/KeptLog.h"
#include "editor/PagePasses.h"
#include "editor/SavingPages.h"
#include "editor/UnstoredPages.h"
#include "editor/frmJournal.h"
#include "look/Form.h"
#include "look/Pass.h"
#include "pictures/modPictures.h"
#include "platform/Process.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/ClipboardHandOver.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/SyncFolder.h"
#include "richtext/box/Pasting.h"
#include "state/State.h"
#include "store/BookcaseFile.h"
#include "store/PageNames.h"

namespace {

// What could not be saved.
struct Refusal {
  std::string told;   // the message of a first refusal
  std::string asked;  // what it is and why, and what leaving without it would lose: for the question
};
using Refusals = std::vector<Refusal>;

const char* const PicturesAsked = "The pictures (tqpics.bin): new ones, and where you moved or removed one. ";
const char* const IndexAsked =
    "The bookcase (journal.tqt): new journals, names, fonts and colours, and a new password. ";

std::string NotSaved(const std::exception& failure) {
  const char* const changed =
      ", and Thornquill stays open. When the cause is removed, leave once more, and it is saved.";
  const char* const unchanged = ", and there was nothing new to save.";
  return std::string("The bookcase could not be saved in journal.tqt. ") + failure.what() +
         "\n\nNothing is lost: " + platform::FileAfter(failure) + (IsBookcaseUnsaved() ? changed : unchanged);
}

void SavePages(Refusals& refusals) {
  if (PagesJournal == 0 || !(look::The<frmJournal>().isVisible() || IsAnythingUnstored())) return;
  const std::string& fileName = Journals.at(static_cast<std::size_t>(PagesJournal)).FileName;
  const bool isJustSaved = StoreOpenPage();
  try {
    SaveAtTheEnd(fileName, isJustSaved);
  } catch (const std::exception& failure) {
    if (IsAnythingUnstored())
      refusals.push_back({{}, "The journal " + fileName + " could not be saved. " + failure.what()});
  }
}

void SavePictures(Refusals& refusals) {
  try {
    WritePicturesLeftUnsaved();
  } catch (const std::exception& failure) {
    refusals.push_back({PicturesNotSaved(failure), std::string(PicturesAsked) + failure.what()});
  }
}

void SaveIndex(Refusals& refusals, void (*save)()) {
  try {
    save();
  } catch (const std::exception& failure) {
    refusals.push_back({NotSaved(failure), std::string(IndexAsked) + failure.what()});
  }
}

// The pages that only the log holds, by their journals.
std::string LoggedPages() {
  std::string text;
  for (const store::UnstoredJournal& journal : PagesUnstored().journals) {
    std::set<std::int32_t> rows;
    for (const store::UnstoredPage& page : journal.pages) rows.insert(page.row);
    text.append(store::TitleOf(journal.FileName)).append(": ");
    text.append(store::PageNames(rows)).append("\n\n");
  }
  return text;
}

bool AsksToLeaveWithout(const Refusals& refusals) {
  std::string text = "Thornquill still cannot save everything.\n\n";
  for (const Refusal& refusal : refusals) text += refusal.asked + "\n\n";
  text += LoggedPages();
  text += BringTheLogUpToDate()
              ? "It is kept in the log journal.tql, and the next start brings it back. Leave now?"
              : "Leave without it, so that it is lost?";
  return platform::ShowMessage({.text = text,
                                .buttons = platform::Buttons::YesNo,
                                .icon = platform::BoxIcon::Stop,
                                .prefersNo = true}) == platform::Answer::Yes;
}

bool wasRefused = false;  // the last way out of a person, since something could not be saved

// What is as the file has it already is not missed.
bool MayLeaveWithout(const Refusals& refusals) {
  const bool isMissed = PicturesUnsaved || IsBookcaseUnsaved();
  if (isMissed && std::exchange(wasRefused, true)) return AsksToLeaveWithout(refusals);
  for (const Refusal& refusal : refusals) platform::ShowMessage(refusal.told);
  return !isMissed;
}

// The names stay readable in memory when the program may have to go on.
void SaveIndexAtTheEnd(Refusals& refusals) {
  SaveIndex(refusals, refusals.empty() ? &SaveJournalIndex : &WriteJournalIndex);
}

bool IsDying() {
  const auto* application = dynamic_cast<platform::Application*>(qApp);
  return application && application->IsDying();
}

// Nobody can answer a box any more. What it would say goes to the error output.
class NobodyThere {
 public:
  NobodyThere()
      : before_(platform::SetMessageAnswerer([](const platform::Message& message) {
          std::fprintf(stderr, "Thornquill: %s\n", message.text.c_str());
          return message.buttons == platform::Buttons::Ok ? platform::Answer::Ok : platform::Answer::No;
        })) {}
  ~NobodyThere() { platform::SetMessageAnswerer(std::move(before_)); }
  Q_DISABLE_COPY_MOVE(NobodyThere)

 private:
  platform::MessageAnswerer before_;
};

// What there is to tell waits until the routine that asked for the save has its answer.
class ToldLater {
 public:
  ToldLater() = default;
  ~ToldLater() {
    platform::SetMessageAnswerer(std::move(before_));
    for (const platform::Message& message : messages_)
      look::Pass::RunAfterwards([message] { platform::ShowMessage(message); });
  }
  Q_DISABLE_COPY_MOVE(ToldLater)

 private:
  std::vector<platform::Message> messages_;
  platform::MessageAnswerer before_ = platform::SetMessageAnswerer([this](const platform::Message& message) {
    messages_.push_back(message);
    return platform::Answer::Ok;
  });
};

// What could not be saved stays in the log, for the next start, and so do pages that a closing left behind.
void EndOfTheLog(const Refusals& refusals) {
  const bool isAllStored = refusals.empty() && PagesUnstored().journals.empty();
  isAllStored ? RemoveTheLog() : void(BringTheLogUpToDate());
}

void SaveWhatCanBeSaved() {
  Refusals refusals;
  SavePages(refusals);
  SavePictures(refusals);
  SaveIndexAtTheEnd(refusals);
  EndOfTheLog(refusals);
  for (const Refusal& refusal : refusals) std::fprintf(stderr, "Thornquill: %s\n", refusal.asked.c_str());
}

// Before anything is saved: what is served here must not find the end half done. Large pictures would not be
// through in that time, and are made in one go.
void HandTheClipboardOver() {
  constexpr std::chrono::milliseconds longest{300};
  const QMimeData* const offered = QGuiApplication::clipboard()->mimeData();
  const platform::ClipboardHandOver handing(offered && richtext::IsLongToMake(*offered));
  if (!handing.IsOver()) look::Pass().Await(longest, [&] { return handing.IsOver(); });
}

void SaveWhatIsUnsaved() {
  const ToldLater later;
  Refusals refusals;
  StoreOpenPage();
  SavePictures(refusals);
  if (IsBookcaseUnsaved()) SaveIndex(refusals, &WriteJournalIndex);
  BringTheLogUpToDate();
  for (const Refusal& refusal : refusals) platform::ShowMessage(refusal.told);
}

void EndWithoutAsking() {
  const NobodyThere nobody;
  if (IsDying())
    StoreOnFailure();
  else if (BookcaseLoaded)
    SaveWhatCanBeSaved();
  platform::EndProcess();
}

}  // namespace

void SaveAndExit() {
  HandTheClipboardOver();
  AwaitSaving();
  Refusals refusals;
  SavePictures(refusals);
  SaveIndexAtTheEnd(refusals);
  if (refusals.empty()) wasRefused = false;
  if (!refusals.empty() && !MayLeaveWithout(refusals)) return;
  EndOfTheLog(refusals);
  platform::EndProcess();
}

void StoreOnFailure() {
  StoreOpenPage();
  BringTheLogUpToDate();
}

void LeaveTheProgram() {
  if (look::Pass::InProgress()) {
    look::Pass::RunAfterwards(&LeaveTheProgram);
    return platform::DismissMessage();
  }
  HandTheClipboardOver();
  EndWithoutAsking();
}

bool SaveAndStay() {
  const bool canBe = !look::Pass::InProgress();
  if (canBe && BookcaseLoaded && !IsDying()) SaveWhatIsUnsaved();
  if (!canBe) look::Pass::RunAfterwards([] { SaveAndStay(); });
  return canBe;
}

void SaveWithoutDisplay() {
  const look::Pass::Stillness stillness;
  EndWithoutAsking();
}
