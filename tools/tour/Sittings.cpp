#include "tools/tour/Sittings.h"

#include <csignal>

#include <QtCore/QDir>

#include "bookcase/frmBookcase.h"
#include "editor/frmJournal.h"
#include "output/frmExport.h"
#include "platform/Files.h"
#include "state/State.h"
#include "tools/tour/Steps.h"

frmJournal& Book() {
  return look::The<frmJournal>();
}

void ExpectPage(Person& person, const QString& number, const QString& text) {
  person.Expect(u"%1 with the text \"%2\""_qs.arg(number, text), [&] {
    return Book().face->lblPageNum1->text() == number && Book().face->txtM->Text() == text;
  });
}

namespace {

const QString Rosebud = u"Rosebud7"_qs;
const QString Thorn = u"Thorn 9"_qs;
const QString FirstPage = u"It rained. We stayed in & read,\ncaf\u00E9, 5 \u20AC, \u0414\u0430."_qs;

void ExpectFile(Person& person, const char* name, bool there) {
  person.Expect(u"the file %1: %2"_qs.arg(QLatin1String(name)).arg(there),
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
  person.Type(password + u'\n');
  person.SeeWindow("frmBookcase");
}

void OpenJournal(Person& person, int row = 0) {
  person.DoubleClickItem("ListView1", row);
  person.SeeWindow("frmJournal");
}

void OpenMyDiary(Person& person) {
  Unlock(person, Rosebud);
  OpenJournal(person);
}

void FirstRun(Person& person) {
  person.SeeWindow("frmInitJournal", "first-run");
  person.Click(u"txtPass"_qs);
  person.Type(u"My Diary\tRosebud7\tRosebud8\n"_qs);
  person.AnswerBox(u"Password entries do not match!"_qs);
  person.Type(Rosebud + u'\t' + Rosebud);
  person.Shot("first-run-filled");
  person.Open("cmdOK", "frmBookcase", "bookcase");
  ExpectFile(person, "journal.tqt", false);
}

void WriteTheFirstPages(Person& person) {
  person.Open("cmdOpen", "frmJournal");
  person.Click(u"btnFirstPage"_qs);
  person.Click(u"txtM"_qs);
  person.Type(u"My Diary\nkept since today"_qs);
  person.Shot("title-page");
  person.Click(u"btnNext"_qs);
  ExpectPage(person, u"Page 1"_qs, {});
  person.Click(u"txtM"_qs);
  person.Type(FirstPage.left(11));
  TakeFont(person, "DejaVu Serif", 12, true, 0x0000C0);
  person.Type(FirstPage.mid(11, 21));
  TakeFont(person, "DejaVu Sans Mono", 10, false, 0xFF0000);
  person.Type(FirstPage.mid(32));
  person.Shot("several-fonts");
  person.Click(u"btnNewPage"_qs);
  person.AnswerBox(u"Add (new) page 2?"_qs, u"Yes"_qs);
  ExpectPage(person, u"Page 2"_qs, {});
  person.Type(u"The second day."_qs);  // a new page has the keyboard
  person.Click(u"btnNext"_qs);
  person.AnswerBox(u"Add (new) page 3?"_qs, u"No"_qs);
  person.Click(u"btnFirstPage"_qs);
  ExpectPage(person, u"Title Page"_qs, u"My Diary\nkept since today"_qs);
  person.Close("frmBookcase");
}

void ReadItAgain(Person& person) {
  person.SeeWindow("frmPass", "locked");
  person.Type(u"rosebud7\n"_qs);
  person.AnswerBox(u"password incorrect!"_qs);
  person.DoubleClick(u"txtPass"_qs);  // what stands there is typed over
  OpenMyDiary(person);
  ExpectPage(person, u"Page 2"_qs, u"The second day."_qs);
  person.Click(u"btnBack"_qs);
  ExpectPage(person, u"Page 1"_qs, FirstPage);
  person.Expect(u"the fonts as they were left"_qs, [] {
    auto* page = Book().face->txtM;
    page->SetSelStart(15);
    return page->SelFontName() == u"DejaVu Serif" && page->SelFontSize() == 12.0 && page->SelBold() == true &&
           page->SelColor() == 0x0000C0u;
  });
  person.Shot("as-it-was-left");
  person.Close("frmBookcase");
}

// The windows take no order before the last page has been written.
void ExportTheDiary(Person& person) {
  person.Open("cmdExport", "frmExport");
  person.Click(u"chkShowPageNumbers"_qs);
  person.Click(u"cmdExport"_qs);
  person.Expect(u"the end of the export"_qs,
                [] { return look::The<frmExport>().cmdViewWebPage->isVisible(); });
  ExpectFile(person, "export/My Diary.html", true);
  person.Shot("exported");
  person.Escape("frmBookcase");
}

void AddAndDelete(Person& person) {
  for (const QString& name : {u"Garden & house"_qs, u"<b>Dreams</b>"_qs}) {
    person.Open("cmdAdd", "frmNewJournal");
    person.Type(name);
    person.Shot("new-journal");
    person.Open("cmdOK", "frmBookcase");
  }
  OpenJournal(person, 2);
  person.Click(u"txtM"_qs);
  person.Type(u"Flying."_qs);
  person.Close("frmBookcase");
  person.Shot("three-journals");
  ExpectFile(person, "j00002.tqf", true);
  person.Click(u"cmdDelete"_qs);
  person.AnswerBox(u"Are you sure you want to delete j00002.tqf"_qs, u"Yes"_qs);
  ExpectFile(person, "j00002.tqf", false);
  OpenJournal(person, 1);
  person.Click(u"txtM"_qs);
  person.Type(u"Peas are up."_qs);
}

void ComeBackAfterTheSystemEndedIt(Person& person) {
  Unlock(person, Rosebud);
  person.Expect(u"two journals"_qs, [] { return look::The<frmBookcase>().ListView1->count() == 2; });
  OpenJournal(person, 1);
  ExpectPage(person, u"Page 1"_qs, u"Peas are up."_qs);
}

void UseTheTools(Person& person) {
  Unlock(person, u"changed later"_qs);
  person.Open("cmdOpen", "frmJournal");
  ExpectPage(person, u"Title Page"_qs, u"Twelve years\nof short notes"_qs);
  FindAndDateAPage(person);
  DressTheText(person);
  ChangeTheProperties(person);
}

void ReadAYear(Person& person) {
  Unlock(person, u"p"_qs);
  person.Portrait("readme-bookcase");
  OpenJournal(person);
  person.Portrait("readme-journal");
}

std::function<void()> Sample(const char* name) {
  return [name] {
    const QDir from(QStringLiteral(SAMPLES "/") + QLatin1String(name));
    for (const QString& file : from.entryList(QDir::Files))
      platform::ReplaceFile(platform::PathOf(file.toStdString()),
                            platform::ReadFile(from.filePath(file).toStdString()));
  };
}

}  // namespace

const std::vector<Sitting>& Sittings() {
  static const auto pressExit = [](Person& person) { person.Click(u"cmdClose"_qs); };
  static const auto closeAndPressExit = [](Person& person) {
    person.Close("frmBookcase");
    person.Click(u"cmdClose"_qs);
  };
  static const std::vector<Sitting> all = {
      {"The first run, the first pages",
       {},
       [](Person& person) {
         FirstRun(person);
         WriteTheFirstPages(person);
       },
       pressExit},
      {"The lock, everything as it was left, and its export",
       {},
       [](Person& person) {
         ReadItAgain(person);
         ExportTheDiary(person);
       },
       [](Person& person) { person.CloseWindow(); }},
      {"Three framed pictures, one dragged",
       {},
       [](Person& person) {
         OpenMyDiary(person);
         LayPictures(person);
       },
       closeAndPressExit},
      {"The pictures where they lay, one removed, and a page on paper",
       {},
       [](Person& person) {
         OpenMyDiary(person);
         FindPicturesAgain(person);
         PrintAPage(person);
       },
       closeAndPressExit},
      {"More journals, and one removed; ended by the system",
       {},
       [](Person& person) {
         Unlock(person, Rosebud);
         AddAndDelete(person);
       },
       [](Person&) { raise(SIGTERM); }},
      {"What the system's order has stored, the themes, another password",
       {},
       [](Person& person) {
         ComeBackAfterTheSystemEndedIt(person);
         TryTheThemes(person);
         ChangeThePassword(person, Rosebud, Thorn);
       },
       pressExit},
      {"Only the new password opens, and a stray journal stands there",
       {},
       [](Person& person) { ComeBackWithTheNewPassword(person, Rosebud, Thorn); },
       closeAndPressExit},
      {"Stray journals, and help in every window", Sample("5-strays"), AskForHelpEverywhere, pressExit},
      {"A diary from elsewhere: index, calendar, font, emoticon, paper", Sample("2-three-journals"),
       UseTheTools, closeAndPressExit},
      {"A year later", StageAYear, ReadAYear, closeAndPressExit},
      {"Left at the lock", Sample("1-first-diary"), [](Person& person) { person.SeeWindow("frmPass"); },
       [](Person& person) { person.Click(u"cmdCancel"_qs); }},
  };
  return all;
}
