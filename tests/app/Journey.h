// The program from its start to its end, over a scratch folder.
#pragma once

#include "app/KeptLog.h"
#include "app/Start.h"
#include "app/WaysOut.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmInitJournal.h"
#include "editor/PageFace.h"
#include "editor/Toolbar.h"
#include "editor/frmCal.h"
#include "editor/frmJournal.h"
#include "lock/frmPass.h"
#include "platform/desktop/Application.h"
#include "richtext/box/RichTextBox.h"
#include "tests/support/Windows.h"

namespace fixture {

class Journey : public Windows {
 protected:
  ~Journey() override { EndTheLog(); }

  // One run of the program, up to the first window. A first run is answered by what is given, on a timer,
  // since its dialog blocks.
  void Start(const std::function<void(frmInitJournal&)>& firstRun = {}) {
    EndTheLog();
    look::UnloadAllForms();
    instance_.reset();
    ResetState();
    end.count = 0;
    if (firstRun) QTimer::singleShot(0, [firstRun] { firstRun(look::The<frmInitJournal>()); });
    instance_ = std::make_unique<platform::RunningInstance>();
    Main(*instance_, {});
  }
  static void Fill(frmInitJournal& dialog, const std::string& name, const std::string& password,
                   const std::string& again) {
    dialog.txtPass->setText(QString::fromStdString(name));
    dialog.txtNewPass->setText(QString::fromStdString(password));
    dialog.txtNewPass2->setText(QString::fromStdString(again));
    Click(dialog.cmdOK);
  }
  // A first run that has been filled in, with the first journal open and something typed.
  void StartAndWrite(const char* text) {
    Start([](frmInitJournal& dialog) { Fill(dialog, "My Diary", "Rosebud7", "Rosebud7"); });
    EXPECT_FALSE(folder.Exists("journal.tqt"));
    OpenTheJournal();
    QTest::keyClicks(Book().face->txtM, QString::fromUtf8(text));
  }
  static void OpenTheJournal() {
    Click(look::The<frmBookcase>().cmdOpen);
    ASSERT_TRUE(Book().isVisible());
  }
  void ExpectAtTheNextStart(const QString& text) {
    EXPECT_EQ(end.count, 1);
    Start();
    Enter("Rosebud7");
    OpenTheJournal();
    EXPECT_EQ(Book().face->txtM->Text(), text);
  }
  static void Enter(const char* password) {
    Lock().txtPass->setText(QLatin1String(password));
    QTest::keyClick(Lock().txtPass, Qt::Key_Return);
  }
  static frmPass& Lock() { return look::The<frmPass>(); }
  static frmJournal& Book() { return look::The<frmJournal>(); }

 private:
  std::unique_ptr<platform::RunningInstance> instance_;
};

}  // namespace fixture
