#include "app/KeptLog.h"

#include <memory>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include "look/Pass.h"
#include "pictures/modPictures.h"
#include "platform/Dates.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "state/State.h"
#include "store/BookcaseFile.h"

namespace {

constexpr std::chrono::milliseconds Pause{1000};
// Of the two seconds the steps have what lies between these, and then the disk has the rest.
constexpr std::chrono::milliseconds Early{1500};
constexpr std::chrono::milliseconds Longest{1900};
constexpr std::chrono::milliseconds Step{6};  // with what it ends in, half a frame at most

std::unique_ptr<KeptLog> theLog;

// But for the journals.
store::UnstoredLog WhatElseIsUnstored() {
  if (!BookcaseLoaded) return {};
  return {platform::Now(), UnstoredBookcaseIndex(), UnstoredPictures(), {}};
}

// The moment aside.
bool IsSame(const store::UnstoredLog& one, const store::UnstoredLog& other) {
  return one.index == other.index && one.pictures == other.pictures;
}

bool ChangesSomething(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonRelease:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

bool MayEndADialog(const QEvent& event) {
  if (event.type() == QEvent::Shortcut) return true;  // of a button's letter
  if (event.type() != QEvent::KeyPress) return event.type() == QEvent::MouseButtonRelease;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

}  // namespace

KeptLog::KeptLog(bool tells)
    : tells_(tells),
      writer_(platform::PathOf("journal.tql"), [this](const auto& failure) { Tell(failure); }) {
  for (QTimer* timer : {&pause_, &early_, &nextStep_, &deadline_}) timer->setSingleShot(true);
  for (QTimer* timer : {&pause_, &early_, &nextStep_})
    connect(timer, &QTimer::timeout, this, &KeptLog::LookInSteps);
  connect(&deadline_, &QTimer::timeout, this, &KeptLog::Look);
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
  if (UnstoredBookcaseIndex() != held_.index) Look();
}

void KeptLog::LookSoon() {
  pause_.start(Pause);
  if (deadline_.isActive()) return;
  early_.start(Early);
  deadline_.start(Longest);
}

void KeptLog::LookInSteps() {
  if (IsCopiedSoon())
    Look();
  else
    nextStep_.start(0);
}

// What fails here fails again where it is told.
bool KeptLog::IsCopiedSoon() {
  try {
    return CopyUnstoredText(QDeadlineTimer(Step));
  } catch (const std::exception&) {
    return true;
  }
}

void KeptLog::Rest() {
  for (QTimer* timer : {&pause_, &early_, &nextStep_, &deadline_}) timer->stop();
}

bool KeptLog::Look() {
  Rest();
  try {
    HandOver(WhatElseIsUnstored(), BookcaseLoaded ? PagesUnstored() : UnstoredPages());
    return true;
  } catch (const std::exception& failure) {  // no copy is worth the program's end
    Tell(failure.what());
    return false;
  }
}

void KeptLog::HandOver(store::UnstoredLog log, UnstoredPages pages) {
  if (IsSame(log, held_) && pages == heldPages_) return;
  held_ = log;
  heldPages_ = pages;
  if (held_.empty() && pages.journals.empty()) return writer_.Put(std::string());
  writer_.Put([whole = std::move(log), rest = std::move(pages)] {
    store::UnstoredLog written = whole;
    written.journals = WithText(rest);
    return store::EncodeLog(written);
  });
}

bool KeptLog::LookAndWait() {
  return Look() && writer_.Wait();
}

// A program that is killed between the file's new name and the end of the log leaves the same in both. Only
// when the log's is the file's own is it known not to be another program's change.
void KeptLog::BeAsNewAs(DataFile file) {
  const bool holdsIt = file == DataFile::TheIndex   ? held_.index.has_value()
                       : file == DataFile::AJournal ? !heldPages_.journals.empty()
                                                    : held_.pictures.has_value();
  if (holdsIt) LookAndWait();
}

void KeptLog::Remove() {
  Rest();
  if (held_.empty() && heldPages_.journals.empty() && writer_.IsUpToDate()) return;
  held_ = {};
  heldPages_ = {};
  writer_.Put(std::string());
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
