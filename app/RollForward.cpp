#include "app/RollForward.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "editor/OpenJournal.h"
#include "platform/Dates.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/KeptFiles.h"
#include "platform/files/ReplaceFile.h"
#include "platform/files/SyncFolder.h"
#include "state/State.h"
#include "store/BookcaseFile.h"
#include "store/BookcaseIndex.h"
#include "store/JournalFile.h"
#include "store/LostJournals.h"
#include "store/PageNames.h"
#include "store/PictureStore.h"
#include "store/RollForward.h"
#include "store/UnstoredLog.h"

namespace {

// What is done with the one log of the start.
struct Work {
  std::optional<store::UnstoredLog> log;
  std::vector<std::string> back;    // a line for all that came back
  std::vector<std::string> unsure;  // and for all of these that a power cut could still take away
  std::vector<std::string> aside;   // and for all that did not, with the reason
  std::string copy;                 // the file that holds the latter
  std::string stays;                // why the log could not be taken away; empty when it could
  bool isRefused = false;           // the disk or the system refused what was to be brought back last
  std::vector<std::pair<std::string, std::int32_t>> damaged;  // the journals that were, and their whole pages
};
Work work;

std::string LogPath() {
  return platform::PathOf("journal.tql");
}

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

// False when it must stay, since `remove` failed. Where the disk could not take the removal in, the log may
// be there again after a power cut, as it is.
template <class Remove>
bool FreeLogPath(Remove&& remove) {
  work.stays.clear();
  try {
    remove();
    platform::SyncFolderOf(LogPath());
  } catch (const platform::Failure& failure) {
    if (!platform::IsMissing(LogPath())) work.stays = failure.what();
  }
  return work.stays.empty();
}

// For a log of which all is where it belongs.
bool TakeLogAway() {
  return FreeLogPath([] { platform::DeleteFile(LogPath()); });
}

// For one that is to be kept, so that a new one may take its place.
bool PutLogAside() {
  return FreeLogPath([] { work.copy = NameOf(platform::MoveAside(LogPath())); });
}

std::string WhyLogStays(const std::string& reason) {
  return "The log journal.tql stays as it is, since it could not be removed. " + reason +
         "\n\nSo no new one can be kept. What you write is stored as ever when the page is turned or the "
         "journal is closed; the end of the machine or of the program before that loses it. Remove the "
         "cause, "
         "and start Thornquill again.";
}

void TellUnreadable(const std::string& problem) {
  const bool isAside = PutLogAside();
  platform::ShowMessage("The log of what was not stored in the last run, journal.tql, cannot be read (" +
                        problem + "). Nothing was changed by it.\n\n" +
                        (isAside ? "It is kept beside as " + work.copy + "." : WhyLogStays(work.stays)));
  work = {};
}

std::optional<store::FileCheck> CheckOfFile(const std::string& path) {
  if (platform::IsMissing(path)) return std::nullopt;
  return store::CheckOf(platform::ReadFile(path));
}

void ReadLog() {
  try {
    store::DecodedLog decoded = store::DecodeLog(platform::ReadFile(LogPath()));
    if (decoded.health != store::LogHealth::Sound) return TellUnreadable(decoded.problem);
    work.log = std::move(decoded.log);
  } catch (const platform::Failure& failure) {
    TellUnreadable(failure.what());
  }
}

// What is asked of the files that are written whole.
struct Kind {
  const char* name;
  const char* what;
  bool (*isSame)(const std::string& one, const std::string& other);
  bool (*isWhole)(const std::string& bytes);
};

constexpr Kind IndexKind = {"journal.tqt", "the bookcase", &IsSameBookcase, [](const std::string& bytes) {
                              return store::DecodeBookcaseIndex(bytes).health ==
                                     store::BookcaseIndexHealth::Sound;
                            }};
constexpr Kind PicturesKind = {
    "tqpics.bin", "the pictures on the pages",
    [](const std::string& one, const std::string& other) { return one == other; },
    [](const std::string& bytes) { return !store::DecodePictureStore(bytes).isDamaged; }};

// The file is the new one even where the disk could not confirm it; only the log must not go then.
template <class Write>
void NoteUnlessOnDisk(Write&& write, const std::string& what) {
  try {
    write();
  } catch (const platform::NotYetOnDisk& failure) {
    work.unsure.push_back(what + ": " + failure.what());
  }
}

void KeepWhereDamaged(const Kind& kind, const std::string& path) {
  if (platform::FileExists(path) && !kind.isWhole(platform::ReadFile(path))) platform::KeepDamaged(path);
}

void RollFile(const Kind& kind, const store::UnstoredFile& logged) {
  work.isRefused = false;
  const std::string path = platform::PathOf(kind.name), what = kind.what, name = kind.name;
  try {
    if (platform::IsMissing(path) || CheckOfFile(path) == logged.began) {
      KeepWhereDamaged(kind, path);
      NoteUnlessOnDisk([&] { platform::ReplaceDataFile(path, logged.bytes); }, what);
      work.back.push_back(what);
    } else if (!kind.isSame(platform::ReadFile(path), logged.bytes)) {
      work.aside.push_back(what + ": " + name + " has been changed by another program since");
    }
  } catch (const platform::Failure& failure) {
    work.aside.push_back(what + ": " + failure.what());
    work.isRefused = true;
  }
}

// A start without the bookcase of a first sitting would take the diary for a new one, and ask for a password
// that may not fit its pages. And one with the bookcase before would ask for a password that may be another
// by now, and write that bookcase anew at its end, so that the log's would never fit again. Where nothing
// can be written at all, there is no such end, and the older one can be read.
bool MustComeBackFirst(bool isWritable) {
  return work.isRefused && (isWritable || platform::IsMissing(platform::PathOf(IndexKind.name)));
}

void TellThatItMustComeBackFirst() {
  platform::ShowMessage(
      "The last run ended before it could save. What it left in its log journal.tql could not "
      "be brought back: " +
          work.aside.back() +
          "\n\nNothing is lost: the log stays as it is. When the cause is removed, start "
          "Thornquill again.",
      platform::BoxIcon::Stop);
}

void Note(const std::string& title, const store::UnstoredPage& logged, const store::RolledPage& page) {
  const bool isBlank = logged.isNew && (!logged.Body || logged.Body->empty());
  const std::string name = title + ": " + store::PageName(page.logged);
  if (page.how == store::Rolled::NoDocument)
    work.aside.push_back(name + ", written under a password with another last letter");
  else if (page.how == store::Rolled::AtTheEnd)
    work.back.push_back(name + ", which is another one by now, as " + store::PageName(page.row));
  else if (page.how == store::Rolled::IntoItsRow && !isBlank)
    work.back.push_back(name);
}

store::DecodedJournal JournalIn(const std::string& fileName) {
  if (platform::IsMissing(platform::PathOf(fileName))) return {{}, store::JournalHealth::Sound, 0};
  store::DecodedJournal journal = store::ReadJournalFile(fileName);
  if (journal.health == store::JournalHealth::Alien)
    throw platform::Failure(platform::FailureKind::PermissionDenied, fileName + " (this is no journal)");
  return journal;
}

void RollJournal(const store::UnstoredJournal& journal) {
  const std::string title = store::TitleOf(journal.FileName);
  try {
    store::DecodedJournal file = JournalIn(journal.FileName);
    const std::vector<store::RolledPage> rolled = store::RollForward(journal.pages, PageShift, file.pages);
    const bool changes = std::ranges::any_of(rolled, [](const store::RolledPage& page) {
      return page.how == store::Rolled::IntoItsRow || page.how == store::Rolled::AtTheEnd;
    });
    if (changes) NoteUnlessOnDisk([&] { store::WriteJournalFile(journal.FileName, file.pages); }, title);
    if (changes && file.health == store::JournalHealth::Damaged)
      work.damaged.push_back({journal.FileName, file.wholePages});
    for (std::size_t i = 0; i < rolled.size(); ++i) Note(title, journal.pages[i], rolled[i]);
  } catch (const platform::Failure& failure) {
    work.aside.push_back(title + ": " + failure.what());
  }
}

// From here on the file may change again, by the exit at the lock for one, before the rest of the log is
// used.
void TakeIndexOutOfTheLog() {
  store::UnstoredLog rest = *work.log;
  rest.index.reset();
  try {
    if (!rest.empty()) return platform::ReplaceFile(LogPath(), store::EncodeLog(rest));
    TakeLogAway();
  } catch (const platform::Failure&) {
    // It is found where it belongs at the next start.
  }
}

// An older store that is still there is read once more, and mostly holds what the log would bring.
void RollPictures(const store::UnstoredFile& logged) {
  const std::string older = platform::PathOf("jpics.bin"), what = PicturesKind.what;
  if (!platform::FileExists(older)) return RollFile(PicturesKind, logged);
  try {
    const std::vector<PagePicture> rows = store::DecodeOldPictureStore(platform::ReadFile(older)).rows;
    if (store::EncodePictureStore(rows) != logged.bytes)
      work.aside.push_back(what + ": the older file jpics.bin is there, and is read instead");
  } catch (const platform::Failure& failure) {
    work.aside.push_back(what + ": " + failure.what());
  }
}

bool IsAllBack() {
  return work.aside.empty() && work.unsure.empty();
}

std::string WhereTheRestIs(const Work& done) {
  if (done.copy.empty()) return {};
  if (done.aside.empty())
    return "\n\nThey are also kept in " + done.copy +
           ", which you can delete when the next start shows them.";
  return "\n\nWhat has not is kept in " + done.copy +
         ". Where something stood in its way, leave Thornquill, remove that or move it to another folder, "
         "and give the file the name journal.tql again: the next start tries once more.";
}

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "\n" + line;
  return text;
}

}  // namespace

bool RollBookcaseForward(bool isWritable) {
  work = {};
  if (!platform::IsMissing(LogPath())) ReadLog();
  if (!work.log || !work.log->index) return true;
  RollFile(IndexKind, *work.log->index);
  if (IsAllBack()) TakeIndexOutOfTheLog();
  if (!MustComeBackFirst(isWritable)) return true;
  TellThatItMustComeBackFirst();
  return false;
}

bool RollPagesForward() {
  if (!work.log) return platform::IsMissing(LogPath());
  if (work.log->pictures) RollPictures(*work.log->pictures);
  for (const store::UnstoredJournal& journal : work.log->journals) RollJournal(journal);
  RecoverLostJournals();
  return IsAllBack() ? TakeLogAway() : PutLogAside();
}

void TellWhatCameBack() {
  const Work done = std::exchange(work, {});
  if (done.back.empty() && done.unsure.empty() && done.aside.empty() && done.stays.empty()) return;
  std::string text = "Thornquill could not save everything before its last end, on " +
                     platform::LongDate(done.log->when).toStdString() + " at " +
                     platform::ToDateTime(done.log->when).toString(QStringLiteral("HH:mm")).toStdString() +
                     ".";
  if (!done.back.empty()) text += "\n\nThis has been brought back from its log:" + Lines(done.back);
  if (!done.unsure.empty())
    text +=
        "\n\nOf these the disk could not yet confirm that it keeps them, and a power cut could take them "
        "away:" +
        Lines(done.unsure);
  if (!done.aside.empty()) text += "\n\nThis has not:" + Lines(done.aside);
  text += WhereTheRestIs(done);
  if (!done.stays.empty()) text += "\n\n" + WhyLogStays(done.stays);
  platform::ShowMessage(text);
  for (const auto& [fileName, wholePages] : done.damaged) TellDamagedJournal(fileName, wholePages);
}
