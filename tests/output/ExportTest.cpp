#include "look/PictureBox.h"
#include "output/frmExport.h"
#include "output/modExport.h"
#include "pictures/PictureSlots.h"
#include "platform/desktop/RunUrl.h"
#include "tests/editor/OpenBook.h"

namespace {

std::string Lines(const std::string& text) {
  return QString::fromLatin1(text).replace(u'\n', u"\r\n"_qs).toLatin1().toStdString();
}

const std::string Font = "<font face=\"Verdana\", \"MS Sans Serif\", \"Arial\">\n";

std::string Head(const std::string& title, const std::string& headline) {
  return "<HTML>\n<HEAD>\n<TITLE>" + title + R"~(</TITLE>
<meta name="Content-Type" content="text/html; charset=iso-8859-1">
<meta name="GENERATOR" content="Thorn Quill (http://www.zandolk.example/)">
</HEAD>
<BODY BGCOLOR=#FFFFFF>
<font face="Verdana", "MS Sans Serif", "Arial">
<BR>
<CENTER>
<h3>)~" + headline +
         "</h3>\n\n<TABLE BORDER=0 width=640>\n<TR>\n<TD>\n" + Font;
}

const std::string Cell = "<TABLE BORDER=0 width=100% height=300>\n<TR>\n<TD>\n" + Font;
const std::string TableEnd = "</TD>\n</TD>\n</TABLE>\n";
const std::string FileEnd = "</CENTER>\n</BODY>\n</HTML>\n";

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
  Click(dialog().chkMulti);
  Click(dialog().chkShowDates);
  dialog().txtH3headline->setText(u"\u0416"_qs);
  dialog().txtFooter->setPlainText(u"<i>foot\nnote</i>\u00A0"_qs);
  Run();
  const std::string head = Head("Home & <b>", "&#1046;");
  EXPECT_EQ(Read("j1/index.html"),
            Lines(head + Cell + "A title<BR>1 < 2 & 3\n\n<BR>\n" + TableEnd + "<BR>\n\n" +
                  "<CENTER>\n[<a href=page1.html>Next Page</a>]\n</CENTER>\n" + TableEnd +
                  "<i>foot\nnote</i>\xA0\n" + FileEnd));
  EXPECT_EQ(Read("j1/page1.html"),
            Lines(head + "<CENTER> day 40001 </CENTER><BR>\n" + Cell + "\xE9 &#1046;<BR>b<BR>\n\n" +
                  TableEnd + "<BR>\n\n" + "<CENTER>\n[<a href=index.html>Home Page</a>]\n</CENTER>\n" +
                  TableEnd + "<i>foot\nnote</i>\xA0\n" + FileEnd));
  EXPECT_EQ(dialog().ProgressBar1->maximum(), 3);
}

TEST_F(Export, ElevenPagesCarryTheirBarAtTheTopAndTheFirstAnIndexOfDates) {
  Begin(fixture::Texts(12, "text"));
  for (auto* choice :
       {dialog().chkMulti, dialog().chkTopMenu, dialog().chkDateIndex, dialog().chkShowPageNumbers})
    Click(choice);
  Run();
  std::string bar = "<CENTER>\n[Home] \n", index;
  for (int k = 1; k <= 11; ++k) {
    const std::string link = "<a href=page" + std::to_string(k) + ".html>";
    if (k <= 10) bar += link + std::to_string(k) + "</a>\n";
    index += link + "day " + std::to_string(40000 + k) + "</a><BR><BR>\n";
  }
  bar += "...\n [<a href=page1.html>Next</a>]\n [<a href=page11.html>Last</a>]\n</CENTER><BR>\n";
  EXPECT_EQ(Read("j1/index.html"),
            Lines(Head("Home & <b>", "Home & <b>") + bar + Cell +
                  "text\n\n<BR>\n<BR>\n<TABLE BORDER=0 width=300>\n<TR>\n<TD>\n" + Font +
                  "<font size=-1>Journal Entries by Date</font><BR><BR>\n" + index + TableEnd + TableEnd +
                  "<BR>\n\n" + TableEnd + "\n" + FileEnd));
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
  const auto page = [](int k, const std::string& content) {
    const std::string number = std::to_string(k);
    return "<TABLE BORDER=0  width=100%>\n<TR>\n<TD>\n" + Font + "<CENTER>Page #" + number + ", day 4000" +
           number + " </CENTER><BR>\n" + content + "\n\n" + TableEnd + "<HR>\n\n";
  };
  const std::string tag = "<a href=\"a.png\"><img src=\"a.png\"  align=left width=0 height=0 border=0></a>\n";
  EXPECT_EQ(Read("Caf\xC3\xA9 #1%.html"),
            Lines(Head("Caf\xE9 #1%", "Caf\xE9 #1%") + Cell + "\n\n" + TableEnd + "<HR>\n\n" + page(1, "") +
                  page(2, tag + "end<BR>") + TableEnd + "\n" + FileEnd));
  std::string opened;
  platform::SetUrlRunner([&](const std::string& url) { opened = url; });
  Click(dialog().cmdViewWebPage);
  platform::SetUrlRunner({});
  EXPECT_EQ(opened, "file://" + folder.PathOf("export/Caf%C3%A9%20%231%25.html"));
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
  EXPECT_EQ(Read("j1/page2.html"),
            Lines(Head("Home & <b>", "Home & <b>") + Cell + "c\n\n" + TableEnd + "<BR>\n\n" +
                  "<CENTER>\n[<a href=index.html>Home</a>] \n[<a href=page1.html>Previous</a>] \n" +
                  "<a href=page1.html>1</a>\n 2 \n</CENTER><BR>\n" + TableEnd + "\n" + FileEnd))
      << "without a date and a number no line is left of them";
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
  platform::DeleteFile(folder.PathOf("export/j1"));
  Run();
  EXPECT_TRUE(dialog().cmdViewWebPage->isVisible());
  platform::SetProgramFolder("/proc/self");
  EXPECT_EQ(EnsureExportFolder(), 1);
  EXPECT_EQ(answers.last(),
            "Path not foundError creating Export folder, check if Thorn Quill folders are read-only.");
}

}  // namespace
