#include "tools/tour/Sittings.h"

#include <csignal>

#include <QtCore/QFile>

#include "bookcase/frmBookcase.h"
#include "editor/frmJournal.h"
#include "platform/Files.h"
#include "state/State.h"
#include "tools/tour/PictureSittings.h"
#include "tools/tour/PrintSitting.h"
#include "tools/tour/SettingsSittings.h"
#include "tools/tour/ToolSittings.h"

namespace {

const QString Rosebud = QStringLiteral("Rosebud7");
const QString Thorn = QStringLiteral("Thorn 9");

frmJournal& Book() {
  return look::The<frmJournal>();
}
QString TextOnPage() {
  return Book().face->txtM->Text();
}

void ExpectPage(Person& person, const QString& number, const QString& text) {
  person.Expect(QStringLiteral("%1 with the text \"%2\"").arg(number, text),
                [&] { return Book().face->lblPageNum1->text() == number && TextOnPage() == text; });
}

void ExpectFile(Person& person, const char* name, bool there) {
  person.Expect(QStringLiteral("the file %1: %2").arg(QLatin1String(name)).arg(there),
                [&] { return platform::FileExists(platform::PathOf(name)) == there; });
}

void TakeFont(Person& person, const char* family, double points, bool bold, std::uint32_t color) {
  person.Do([&] {
    auto* page = Book().face->txtM;
    page->SetSelFontName(QLatin1String(family));
    page->SetSelFontSize(points);
    page->SetSelBold(bold);
    page->SetSelColor(color);
  });
}

void Unlock(Person& person, const QString& password) {
  person.SeeWindow("frmPass");
  person.Type(password + QLatin1Char('\n'));
  person.SeeWindow("frmBookcase");
}

void OpenMyDiary(Person& person) {
  Unlock(person, Rosebud);
  person.DoubleClickItem("ListView1", 0);
  person.SeeWindow("frmJournal");
}

void PressExit(Person& person) {
  person.Click("cmdClose");
}

void FirstRun(Person& person) {
  person.SeeWindow("frmInitJournal");
  person.Shot("first-run");
  person.Click("cmdOK");
  person.AnswerBox(QStringLiteral("Please enter a name for this journal!"), QStringLiteral("OK"));
  person.Click("txtPass");
  person.Type(QStringLiteral("My Diary\tRosebud7\tRosebud8"));
  person.Click("cmdOK");
  person.AnswerBox(QStringLiteral("Password entries do not match!"), QStringLiteral("OK"));
  person.Click("txtNewPass");
  person.Type(Rosebud + QLatin1Char('\t') + Rosebud);
  person.Shot("first-run-filled");
  person.Click("cmdOK");
  person.SeeWindow("frmBookcase");
  ExpectFile(person, "journal.tqt", false);
  person.Shot("bookcase");
}

void WriteTheFirstPages(Person& person) {
  person.Click("cmdOpen");
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("the journal's name in the caption"),
                [] { return Book().windowTitle() == QStringLiteral("Thornquill [My Diary]"); });
  person.Click("btnFirstPage");
  person.Click("txtM");
  person.Type(QStringLiteral("My Diary\nkept since today"));
  person.Shot("title-page");
  person.Click("btnNext");
  ExpectPage(person, QStringLiteral("Page 1"), QString());
  person.Click("txtM");
  person.Type(QStringLiteral("It rained. "));
  TakeFont(person, "DejaVu Serif", 12, true, 0x0000C0);
  person.Type(QStringLiteral("We stayed in & read,\n"));
  TakeFont(person, "DejaVu Sans Mono", 10, false, 0xFF0000);
  person.Type(QString::fromUtf8("caf\xc3\xa9, 5 \xe2\x82\xac, \xd0\x94\xd0\xb0."));
  person.Shot("several-fonts");
}

void TurnAndAddPages(Person& person) {
  person.Click("btnNewPage");
  person.AnswerBox(QStringLiteral("Add (new) page 2?"), QStringLiteral("Yes"));
  ExpectPage(person, QStringLiteral("Page 2"), QString());
  person.Type(QStringLiteral("The second day."));  // a new page has the keyboard
  person.Click("btnNext");
  person.AnswerBox(QStringLiteral("Add (new) page 3?"), QStringLiteral("No"));
  ExpectPage(person, QStringLiteral("Page 2"), QStringLiteral("The second day."));
  person.Click("btnBack");
  person.Shot("turned-back");
  person.Click("btnFirstPage");
  ExpectPage(person, QStringLiteral("Title Page"), QStringLiteral("My Diary\nkept since today"));
  person.Click("btnLastPage");
  ExpectPage(person, QStringLiteral("Page 2"), QStringLiteral("The second day."));
}

void BeginADiary(Person& person) {
  FirstRun(person);
  WriteTheFirstPages(person);
  TurnAndAddPages(person);
  person.PressEscape();
  person.SeeWindow("frmJournal");
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
  ExpectFile(person, "j00000.tqf", true);
}

void ReadItAgain(Person& person) {
  person.SeeWindow("frmPass");
  person.Shot("locked");
  person.Type(QStringLiteral("rosebud7\n"));
  person.AnswerBox(QStringLiteral("password incorrect!"), QStringLiteral("OK"));
  person.Do(
      [] { QApplication::activeWindow()->findChild<QLineEdit*>(QStringLiteral("txtPass"))->selectAll(); });
  OpenMyDiary(person);
  ExpectPage(person, QStringLiteral("Page 2"), QStringLiteral("The second day."));
  person.Click("btnBack");
  ExpectPage(
      person, QStringLiteral("Page 1"),
      QString::fromUtf8("It rained. We stayed in & read,\ncaf\xc3\xa9, 5 \xe2\x82\xac, \xd0\x94\xd0\xb0."));
  person.Expect(QStringLiteral("the fonts as they were left"), [] {
    auto* page = Book().face->txtM;
    page->SetSelStart(15);
    return page->SelFontName() == QStringLiteral("DejaVu Serif") && page->SelFontSize() == 12.0 &&
           page->SelBold() == true && page->SelColor() == 0x0000C0u;
  });
  person.Shot("as-it-was-left");
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
}

void ExportTheDiary(Person& person) {
  person.Click("cmdAbout");
  person.SeeWindow("frmAbout");
  person.Shot("about");
  person.PressEscape();
  person.SeeWindow("frmBookcase");
  person.Click("cmdExport");
  person.SeeWindow("frmExport");
  person.Click("chkShowPageNumbers");
  person.Shot("export");
  person.Click("cmdExport");
  person.Expect(QStringLiteral("the page's own text in the web page"), [] {
    const std::string path = platform::PathOf("export") + "/My Diary.html";
    const std::string html = platform::FileExists(path) ? platform::ReadFile(path) : std::string();
    return html.find("<CENTER>Page #1  </CENTER><BR>") != std::string::npos &&
           html.find("We stayed in & read,<BR>caf\xE9, 5 \x80, &#1044;&#1072;.\r\n") != std::string::npos;
  });
  person.Shot("exported");
  person.PressEscape();
  person.SeeWindow("frmBookcase");
}

void AddAndDelete(Person& person) {
  for (const char* name : {"Garden & house", "<b>Dreams</b>"}) {
    person.Click("cmdAdd");
    person.SeeWindow("frmNewJournal");
    person.Type(QLatin1String(name));
    person.Shot("new-journal");
    person.Click("cmdOK");
    person.SeeWindow("frmBookcase");
  }
  person.DoubleClickItem("ListView1", 2);
  person.SeeWindow("frmJournal");
  person.Click("txtM");
  person.Type(QStringLiteral("Flying."));
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
  ExpectFile(person, "j00002.tqf", true);
  person.Shot("three-journals");
  person.Click("cmdDelete");
  person.AnswerBox(QStringLiteral("Are you sure you want to delete j00002.tqf"), QStringLiteral("Yes"));
  ExpectFile(person, "j00002.tqf", false);
  person.DoubleClickItem("ListView1", 1);
  person.SeeWindow("frmJournal");
  person.Click("txtM");
  person.Type(QStringLiteral("Peas are up."));
}

void ComeBackAfterTheSystemEndedIt(Person& person) {
  Unlock(person, Rosebud);
  person.Expect(QStringLiteral("two journals"),
                [] { return look::The<frmBookcase>().ListView1->count() == 2; });
  person.DoubleClickItem("ListView1", 1);
  person.SeeWindow("frmJournal");
  ExpectPage(person, QStringLiteral("Page 1"), QStringLiteral("Peas are up."));
}

void OpenTheGardenNotes(Person& person) {
  Unlock(person, QStringLiteral("changed later"));
  person.Click("cmdOpen");
  person.SeeWindow("frmJournal");
  ExpectPage(person, QStringLiteral("Title Page"), QStringLiteral("Twelve years\nof short notes"));
  person.Click("btnLastPage");
  person.Expect(QStringLiteral("the last page"),
                [] { return Book().face->lblPageNum1->text() == QStringLiteral("Page 120"); });
}

void LeafThroughTheGardenNotes(Person& person) {
  OpenTheGardenNotes(person);
  person.Shot("twelve-years");
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
}

}  // namespace

const std::vector<Sitting>& Sittings() {
  static const auto leaveByCloseBox = [](Person& person) { person.CloseWindow(); };
  static const auto leaveTheJournal = [](Person& person) {
    person.CloseWindow();
    person.SeeWindow("frmBookcase");
    PressExit(person);
  };
  static const std::vector<Sitting> all = {
      {"The first run, the first pages", nullptr, BeginADiary, PressExit},
      {"The lock, everything as it was left, and its export", nullptr,
       [](Person& person) {
         ReadItAgain(person);
         ExportTheDiary(person);
       },
       leaveByCloseBox},
      {"Three framed pictures, one dragged", nullptr,
       [](Person& person) {
         OpenMyDiary(person);
         LayPictures(person);
       },
       leaveTheJournal},
      {"The pictures where they lay, and one removed", nullptr,
       [](Person& person) {
         OpenMyDiary(person);
         FindPicturesAgain(person);
       },
       leaveTheJournal},
      {"A page on paper", nullptr,
       [](Person& person) {
         Unlock(person, Rosebud);
         PrintAPage(person);
       },
       PressExit},
      {"More journals, and one removed; ended by the system", nullptr,
       [](Person& person) {
         Unlock(person, Rosebud);
         AddAndDelete(person);
       },
       [](Person&) { raise(SIGTERM); }},
      {"What the system's order to end has stored", nullptr, ComeBackAfterTheSystemEndedIt, leaveTheJournal},
      {"Three themes, and another password", nullptr,
       [](Person& person) {
         OpenMyDiary(person);
         TryTheThemes(person);
         ChangeThePassword(person, Rosebud, Thorn);
         person.Do(&BringAStray);
       },
       PressExit},
      {"Only the new password opens, and a stray journal stands there", nullptr,
       [](Person& person) { ComeBackWithTheNewPassword(person, Rosebud, Thorn); }, PressExit},
      {"Stray journals, and help in every window", "5-strays", AskForHelpEverywhere, PressExit},
      {"A diary from elsewhere", "2-three-journals", LeafThroughTheGardenNotes, PressExit},
      {"The index, the calendar, a font and an emoticon", "2-three-journals",
       [](Person& person) {
         OpenTheGardenNotes(person);
         FindAndDateAPage(person);
         DressTheText(person);
       },
       leaveTheJournal},
      {"Another icon and paper", "2-three-journals",
       [](Person& person) {
         OpenTheGardenNotes(person);
         ChangeTheProperties(person);
         person.CloseWindow();
         person.SeeWindow("frmBookcase");
         person.Shot("another-icon");
       },
       PressExit},
      {"Left at the lock", "1-first-diary", [](Person& person) { person.SeeWindow("frmPass"); },
       [](Person& person) { person.Click("cmdCancel"); }},
  };
  return all;
}
