// A journal that stands open in its window, for what is measured there.
#pragma once

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "bench/BigDiary.h"
#include "editor/OpenJournal.h"
#include "editor/PageFace.h"
#include "editor/frmJournal.h"
#include "platform/files/Files.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"

namespace bench {

// A program folder with one journal of so many pages of 3.15 KB of RTF: 10,000 of them make 63 MB.
class Diary {
 public:
  explicit Diary(std::int32_t pages, std::size_t pageBytes = 3150) {
    platform::SetProgramFolder(folder_.path().toStdString());
    OneJournal();
    // By a child, so that what the making leaves behind in the memory is not counted to the opening.
    const pid_t child = fork();
    if (child == 0) {
      WriteJournal(pages, pageBytes);
      _exit(0);
    }
    waitpid(child, nullptr, 0);
  }
  ~Diary() {
    Close();
    platform::SetProgramFolder({});
  }

  void Open() {
    LoadJournalFile(Journals[1].FileName);
    look::The<frmJournal>().ShowModeless();
    if (!QTest::qWaitForWindowExposed(&look::The<frmJournal>())) std::abort();
    Draw();
  }
  void Draw() {
    QCoreApplication::processEvents();
    look::The<frmJournal>().repaint();
  }
  void Close() {
    look::The<frmJournal>().hide();
    Face().txtM->SetTextRTF({});
    PageInHand::PagesForgotten();
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace bench
