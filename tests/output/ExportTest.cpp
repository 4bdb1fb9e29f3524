#include "look/PictureBox.h"
#include "output/frmExport.h"
#include "output/modExport.h"
#include "pictures/PictureSlots.h"
#include "platform/desktop/RunUrl.h"
#include "platform/files/InputFile.h"
#include "tests/editor/OpenBook.h"

namespace {

class Export : public fixture::OpenBook {
 protected:
  ~Export() override { ExportTarget.clear(); }

  void Begin(const fixture::Texts& texts, const std::string& name = "Home & <b>") {
    const std::int32_t row = AddJournal(texts);
    Journals.back().Name = name;
    EXPECT_EQ(EnsureExportFolder(), 0);
    Load(row);
    dialog().ShowModeless();
  }
  static frmExport& dialog() { return look::The<frmExport>(); }
  void Run() { Click(dialog().cmdExport); }
  std::string Read(const std::string& name) const { return folder.Read("export/" + name); }
  // The file is the sample, byte for byte.
  void ExpectAsIn(const std::string& sample, const std::string& file) const {
    EXPECT_EQ(Read(file), platform::ReadFile(fixture::PathOfSample("exports/" + std::string(sample))))
        << sample;
  }
  // A run that fails tells why and can be repeated.
  void ExpectFailure(const std::string& words) {
    Run();
    EXPECT_NE(answers.last().find(words), std::string::npos) << answers.last();
    EXPECT_TRUE(dialog().cmdExport->isEnabled());
    EXPECT_FALSE(dialog().ProgressBar1->isVisible() || dialog().cmdViewWebPage->isVisible());
  }
};

TEST_F(Export, OneDatedPageMakesTwoFiles) {
  Begin({"A title\\par 1 < 2 & 3", "\\'e9 \\u1046?\\line b\\par\\par"});
  EXPECT_FALSE(dialog().txtH3headline->hasSelectedText());
  Click(dialog().chkMulti);
  Click(dialog().chkShowDates);
  dialog().txtH3headline->setText(u"\u0416"_qs);
  dialog().txtFooter->setPlainText(u"<i>foot\nnote</i>\u00A0"_qs);
  Run();
  ExpectAsIn("one-page-index.html", "j1/index.html");
  ExpectAsIn("one-page-page1.html", "j1/page1.html");
  EXPECT_EQ(dialog().ProgressBar1->maximum(), 3);
}

TEST_F(Export, ElevenPagesCarryTheirBarAtTheTopAndTheFirstAnIndexOfDates) {
  Begin(fixture::Texts(12, "text"));
  for (auto* choice :
       {dialog().chkMulti, dialog().chkTopMenu, dialog().chkDateIndex, dialog().chkShowPageNumbers})
    Click(choice);
  Run();
  ExpectAsIn("eleven-pages-index.html", "j1/index.html");
  EXPECT_NE(Read("j1/page11.html").find("<CENTER>Page #11  </CENTER><BR>"), std::string::npos);
  Click(dialog().chkMulti);
  for (const QCheckBox* choice : {dialog().chkTopMenu, dialog().chkDateIndex})
    EXPECT_FALSE(choice->isChecked() || choice->isEnabled());
}

TEST_F(Export, OneFileHoldsAllPagesAndTheClosingNone) {
  Begin({"", "\\par\\par", "end\\par\\par"}, "Caf\xE9 #1%");
  folder.WritePicture("a.png");
  PictureCount = 1;
  Pictures = {{}, {folder.PathOf("a.png"), 0, 0, 0, "", 0, "", 2, "", "j1.tqf", 0, 0, False}};
  Click(dialog().chkShowDates);
  Click(dialog().chkShowPageNumbers);
  Run();
  ExpectAsIn("one-file.html", "Caf\xC3\xA9 #1%.html");
  fixture::Texts opened;
  platform::SetUrlRunner([&](const std::string& url) { opened.push_back(url); });
  Click(dialog().cmdViewWebPage);
  QTest::mouseDClick(dialog().cmdViewWebPage, Qt::LeftButton);  // the second press of two
  QTest::mouseRelease(dialog().cmdViewWebPage, Qt::LeftButton);
  platform::SetUrlRunner({});
  EXPECT_EQ(opened, fixture::Texts(1, "file://" + folder.PathOf("export/Caf%C3%A9%20%231%25.html")));
  EXPECT_FALSE(window().face->pictures->picDisplayPics[0]->isHidden());
  dialog().CloseBox();
  EXPECT_TRUE(window().face->pictures->picDisplayPics[0]->isHidden());
  EXPECT_TRUE(Pages.empty() && text().Text().isEmpty());
}

TEST_F(Export, AsksOnceBeforeItWritesOverAFile) {
  Begin({"a", "b", "c"});
  folder.Write("export/Home & <b>.html", "old");
  Run();
  EXPECT_EQ(answers.texts(), fixture::Texts{"File exists, overwrite?"});
  EXPECT_EQ(Read("Home & <b>.html"), "old");
  Click(dialog().chkMulti);
  Run();
  folder.Write("export/j1/page2.html", "old");
  folder.Write("export/j1/page3.html", "of a longer journal");
  Run();
  EXPECT_TRUE(dialog().cmdViewWebPage->isVisible()) << "declining leaves it to the run before";
  EXPECT_EQ(Read("j1/page2.html"), "old");
  answers.ok = 1;
  Run();
  EXPECT_EQ(answers.messages.size(), 3u);
  ExpectAsIn("undated-page2.html", "j1/page2.html");
  EXPECT_EQ(Read("j1/page3.html"), "of a longer journal");
  EXPECT_EQ(ExportTarget, folder.PathOf("export/j1/index.html"));
}

TEST_F(Export, WhatCannotBeWrittenIsToldAndTheNextRunGoesWell) {
  Begin({"a", "b"});
  for (const std::string& name : {std::string("../../a"), std::string("a\0b", 3)}) {
    Journals[1].Name = name;
    ExpectFailure("No file can have this name: ");
    EXPECT_EQ(folder.Names("export"), fixture::Texts()) << name;
  }
  Click(dialog().chkMulti);
  folder.Write("export/j1", "a file in the place of the folder");
  ExpectFailure("Path not found: " + folder.PathOf("export/j1/index.html"));
  EXPECT_EQ(dialog().focusWidget(), dialog().cmdExport) << "to be pressed again";
  platform::DeleteFile(folder.PathOf("export/j1"));
  Run();
  EXPECT_TRUE(dialog().cmdViewWebPage->isVisible());
  Click(dialog().chkMulti);
  ExpectFailure("No file can have this name: ");  // and what was made before is offered no more
  platform::SetProgramFolder("/proc/self");
  EXPECT_EQ(EnsureExportFolder(), 1);
  EXPECT_EQ(answers.last(),
            "Path not foundError creating Export folder, check if Thorn Quill folders are read-only.");
}

}  // namespace
