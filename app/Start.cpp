#include "app/Start.h"

#include <cstdio>

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include "app/Help.h"
#include "app/KeptLog.h"
#include "app/RollForward.h"
#include "app/Settings.h"
#include "app/WaysOut.h"
#include "app/frmOptions.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmInitJournal.h"
#include "editor/PageTurning.h"
#include "editor/SavingPages.h"
#include "editor/frmJournal.h"
#include "lock/frmPass.h"
#include "look/Dress.h"
#include "look/Form.h"
#include "output/frmExport.h"
#include "output/modPrint.h"
#include "pictures/modPictures.h"
#include "platform/Process.h"
#include "platform/desktop/Application.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "platform/files/KeptFiles.h"
#include "platform/files/ReplaceFile.h"
#include "state/State.h"
#include "store/BookcaseFile.h"
#include "store/LostJournals.h"

namespace {

// The journal window belongs to the start of the program, but nobody sees it before the lock is open: it is
// loaded when the first window has had the time to be drawn.
constexpr int JournalWindowDelayMs = 250;

bool FolderIsWritableOrTell() {
  const std::string folder = platform::ProgramFolder();
  if (platform::CanWriteTo(folder)) return true;
  platform::ShowMessage("Nothing can be saved in the folder of the program:\n" + folder +
                            "\n\nWhat you write now could not be kept. Make the folder writable, or move the "
                            "program with all its files to a folder of your own, and start it again.",
                        platform::BoxIcon::Stop);
  return false;
}

void TellThatTheFolderIsInUse(platform::Meeting meeting) {
  const bool another = meeting == platform::Meeting::AnotherUser;
  const std::string where = another ? "the Thornquill of another user of this computer"
                                    : "another window of Thornquill, which does not answer";
  const std::string advice =
      another ? "Start Thornquill again when the other user has left the diary."
              : "The other one may be busy with a slow disk: wait a while, and start Thornquill again. If it "
                "never answers, end it with the system monitor, or log out and in.";
  platform::ShowMessage("The diary in this folder is open in " + where + ":\n" + platform::ProgramFolder() +
                            "\n\nTwo at once would overwrite each other's pages, so this one ends and "
                            "changes nothing. " +
                            advice,
                        platform::BoxIcon::Stop);
}

// Nobody who started it at a terminal is to wonder why no window came.
void TellThatItOnlyAsks() {
  std::fputs(
      "Thornquill: the diary is open already. The desktop did not let its window come to the front; it "
      "asks for your attention.\n",
      stderr);
}

QWidget* VisibleWindow() {
  if (look::IsLoaded<frmJournal>() && look::The<frmJournal>().isVisible()) return &look::The<frmJournal>();
  if (look::IsLoaded<frmExport>()) return &look::The<frmExport>();
  if (look::IsLoaded<frmBookcase>() && look::The<frmBookcase>().isVisible()) return &look::The<frmBookcase>();
  if (look::IsLoaded<frmPass>()) return &look::The<frmPass>();
  if (look::IsLoaded<frmInitJournal>()) return &look::The<frmInitJournal>();
  return QApplication::activeModalWidget();  // a message of the start
}

void ComeToTheFront(const platform::ActivationToken& token) {
  if (QWidget* window = VisibleWindow()) platform::BringToFront(*window, token);
}

// The password may be another one afterwards, and the files tell which.
void ShowOptions() {
  AwaitSaving();
  look::The<frmOptions>().ShowModal();
}

// Its commands whose windows lie upstairs are connected here.
void LoadJournalWindow() {
  if (look::IsLoaded<frmJournal>()) return;
  auto& book = look::The<frmJournal>();
  QObject::connect(&book, &frmJournal::PrintRequested, &PrintJournal);
  QObject::connect(&book, &frmJournal::OptionsRequested, &ShowOptions);
}

// What an earlier run left unstored comes first, so that nothing new is written over it.
void GoOnWithTheLog(bool isWritable) {
  if (RollPagesForward()) return BeginTheLog(isWritable);
  LogThrough = [] { return false; };  // nothing goes from the disk that is in memory alone
}

void Unlock(bool isWritable) {
  LoadJournalWindow();
  GoOnWithTheLog(isWritable);
  look::The<frmBookcase>().ShowModeless();
  LoadPictureStore();
  TellWhatCameBack();
  TellLeftOutJournals();
}

void StartLocked(bool isWritable) {
  LoadJournalIndex();
  RecoverLostJournals();
  auto& lock = look::The<frmPass>();
  QObject::connect(&lock, &frmPass::ExitRequested, &SaveAndExit);
  QObject::connect(&lock, &frmPass::Unlocked, [isWritable] { Unlock(isWritable); });
  lock.ShowModeless();
  QTimer::singleShot(JournalWindowDelayMs, &LoadJournalWindow);
}

void StartForTheFirstTime(bool isWritable) {
  look::The<frmInitJournal>().ShowModal();
  if (JournalCount == 0) return;  // left by the exit
  LoadJournalWindow();
  NewJournalPages();
  GoOnWithTheLog(isWritable);
  TellWhatCameBack();
}

}  // namespace

void ActivatePrevInstance(platform::RunningInstance& instance, const platform::ActivationToken& token) {
  if (instance.IsFirst()) return;
  const platform::Meeting meeting = instance.HandOver(token);
  if (meeting == platform::Meeting::IsFirst) return;
  if (meeting == platform::Meeting::Announced)
    TellThatItOnlyAsks();
  else if (meeting != platform::Meeting::HandedOver)
    TellThatTheFolderIsInUse(meeting);
  platform::EndProcess();
}

void Main(platform::RunningInstance& instance, const platform::ActivationToken& token) {
  look::DressTheProgram();
  QApplication::setQuitOnLastWindowClosed(false);  // the windows hide for one another; EndProcess alone ends
  ActivatePrevInstance(instance, token);
  if (!instance.IsFirst()) return;  // reached only where a test stands in for the end
  QObject::connect(&instance, &platform::RunningInstance::ActivationRequested, &ComeToTheFront);
  platform::RemoveUnfinished(platform::ProgramFolder());
  const bool isWritable = FolderIsWritableOrTell();
  AnswerF1();
  LoadSettings();
  auto& bookcase = look::The<frmBookcase>();  // it lists what the index loads
  QObject::connect(&bookcase, &frmBookcase::OptionsRequested, &ShowOptions);
  QObject::connect(&bookcase, &frmBookcase::ExitRequested, &SaveAndExit);
  if (!RollBookcaseForward(isWritable)) return platform::EndProcess();
  if (platform::IsMissing(platform::PathOf("journal.tqt"))) {
    StartForTheFirstTime(isWritable);
  } else {
    StartLocked(isWritable);
  }
}
