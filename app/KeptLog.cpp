#include "app/KeptLog.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include "editor/UnstoredPages.h"
#include "look/Pass.h"
#include "pictures/modPictures.h"
#include "platform/Dates.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "state/State.h"
#include "store/JournalIndex.h"

namespace {

constexpr std::chrono::milliseconds Pause{1000};
constexpr std::chrono::milliseconds Longest{1900};  // the disk has the rest of the two seconds

std::unique_ptr<KeptLog> theLog;

store::UnstoredLog WhatIsUnstored() {
  if (!BookcaseLoaded) return {};
  return {platform::Now(), UnstoredIndex(), UnstoredPictures(), UnstoredJournals()};
}

// The moment aside.
bool IsSame(store::UnstoredLog one, const store::UnstoredLog& other) {
  one.when = other.when;
  return one == other;
}

bool ChangesSomething(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonRelease:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

bool MayEndADialog(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return event.type() == QEvent::MouseButtonRelease;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

}  // namespace

KeptLog::KeptLog(bool tells)
    : tells_(tells),
      writer_(platform::PathOf("journal.tql"), [this](const auto& failure) { Tell(failure); }) {
  for (QTimer* timer : {&pause_, &deadline_}) {
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &KeptLog::Look);
  }
  FileWillBeWritten = [this](DataFile file) { BeAsNewAs(file); };
  SomethingWasStored = [this] { QTimer::singleShot(0, this, &KeptLog::Look); };
  LogThrough = [this] { return LookAndWait(); };
  qApp->installEventFilter(this);
  Look();
}

KeptLog::~KeptLog() {
  ForgetPagesLeftBehind();
  FileWillBeWritten = nullptr;
  SomethingWasStored = nullptr;
  LogThrough = nullptr;
}

bool KeptLog::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (!ChangesSomething(event->type())) return false;
  LookSoon();
  if (MayEndADialog(*event)) QTimer::singleShot(0, this, &KeptLog::LookAtTheBookcase);
  return false;
}

// A journal or a password is no typing of two seconds.
void KeptLog::LookAtTheBookcase() {
  if (UnstoredIndex() != held_.index) Look();
}

void KeptLog::LookSoon() {
  pause_.start(Pause);
  if (!deadline_.isActive()) deadline_.start(Longest);
}

bool KeptLog::Look() {
  pause_.stop();
  deadline_.stop();
  try {
    HandOver(WhatIsUnstored());
    return true;
  } catch (const std::exception& failure) {  // no copy is worth the program's end
    Tell(failure.what());
    return false;
  }
}

void KeptLog::HandOver(store::UnstoredLog log) {
  if (IsSame(log, held_)) return;
  writer_.Put(log.empty() ? std::string() : store::EncodeLog(log));
  held_ = std::move(log);
}

bool KeptLog::LookAndWait() {
  return Look() && writer_.Wait();
}

// A program that is killed between the file's new name and the end of the log leaves the same in both. Only
// when the log's is the file's own is it known not to be another program's change.
void KeptLog::BeAsNewAs(DataFile file) {
  const bool holdsIt = file == DataFile::TheIndex   ? held_.index.has_value()
                       : file == DataFile::AJournal ? !held_.journals.empty()
                                                    : held_.pictures.has_value();
  if (holdsIt) LookAndWait();
}

void KeptLog::Remove() {
  pause_.stop();
  deadline_.stop();
  if (held_.empty() && writer_.IsUpToDate()) return;
  held_ = {};
  writer_.Put({});
  writer_.Wait();
}

void KeptLog::Tell(const std::optional<std::string>& failure) {
  if (!failure || !tells_) return;
  tells_ = false;
  look::Pass::RunAfterwards([text = *failure] {
    platform::ShowMessage(
        "What is not stored yet cannot be kept in the log journal.tql. " + text +
        "\n\nWhat you write is stored as ever when the page is turned or the journal is closed. Until the "
        "cause is removed, the end of the machine or of the program before that loses it. This is told "
        "once.");
  });
}

void BeginTheLog(bool tells) {
  if (!theLog) theLog = std::make_unique<KeptLog>(tells);
}

void EndTheLog() {
  theLog.reset();
}

bool BringTheLogUpToDate() {
  return theLog && theLog->LookAndWait();
}

void RemoveTheLog() {
  if (theLog) theLog->Remove();
}
