#include <csignal>

#include "bookcase/frmBookcase.h"
#include "platform/files/ReplaceFile.h"
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

void Unlock(Person& person, const QString& password) {
  person.SeeWindow("frmPass");
  person.Enter(password, "frmBookcase");
}

void OpenJournal(Person& person, int row = 0) {
  person.DoubleClick(u"ListView1"_qs, row);
  person.SeeWindow("frmJournal");
}

void OpenMyDiary(Person& person) {
  Unlock(person, Rosebud);
  OpenJournal(person);
}

void FirstRun(Person& person) {
  person.SeeWindow("frmInitJournal", "first-run");
  person.Click(u"txtPass"_qs);
  person.Type(u"My Diary\t%1\t%1"_qs.arg(Rosebud));
  person.Shot("first-run-filled");
  person.Open("cmdOK", "frmBookcase", "bookcase");
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
  person.Do([] { Book().face->txtM->SetSelColor(0x0000C0); });
  person.Type(FirstPage.mid(11));
  person.Shot("two-colours");
  person.Click(u"btnNewPage"_qs);
  person.AnswerBox(u"Add (new) page 2?"_qs, u"Yes"_qs);
  ExpectPage(person, u"Page 2"_qs, {});
  person.Type(u"The second day."_qs);  // a new page has the keyboard
  person.Close("frmBookcase");
}

void ReadItAgain(Person& person) {
  person.SeeWindow("frmPass", "locked");
  OpenMyDiary(person);
  ExpectPage(person, u"Page 2"_qs, u"The second day."_qs);
  person.Click(u"btnBack"_qs);
  ExpectPage(person, u"Page 1"_qs, FirstPage);
  person.Expect(u"the colour as it was left"_qs, [] {
    Book().face->txtM->SetSelStart(15);
    return Book().face->txtM->SelColor() == 0x0000C0u;
  });
  person.Shot("as-it-was-left");
  person.Close("frmBookcase");
}

void WriteInJournal(Person& person, int row, const QString& text) {
  OpenJournal(person, row);
  person.Click(u"txtM"_qs);
  person.Type(text);
}

void AddAndDelete(Person& person) {
  Unlock(person, Rosebud);
  for (const QString& name : {u"Garden & house"_qs, u"<b>Dreams</b>"_qs}) {
    person.Open("cmdAdd", "frmNewJournal");
    person.Type(name);
    person.Shot("new-journal");
    person.Open("cmdOK", "frmBookcase");
  }
  WriteInJournal(person, 2, u"Flying."_qs);
  person.Close("frmBookcase");
  person.Shot("three-journals");
  person.Click(u"cmdDelete"_qs);
  person.AnswerBox(u"Are you sure you want to delete j00002.tqf"_qs, u"Yes"_qs);
  person.Expect(u"its file to go"_qs, [] { return !platform::FileExists(platform::PathOf("j00002.tqf")); });
  WriteInJournal(person, 1, u"Peas are up."_qs);
}

void ComeBackAfterTheSystemEndedIt(Person& person) {
  Unlock(person, Rosebud);
  OpenJournal(person, 1);
  ExpectPage(person, u"Page 1"_qs, u"Peas are up."_qs);
}

void OpenTheDiaryFromElsewhere(Person& person) {
  Unlock(person, u"changed later"_qs);
  person.Open("cmdOpen", "frmJournal");
  ExpectPage(person, u"Title Page"_qs, u"Twelve years\nof short notes"_qs);
}

void ReadAYear(Person& person) {
  Unlock(person, u"p"_qs);
  person.Portrait("readme-bookcase");
  OpenJournal(person);
  person.Portrait("readme-journal");
}

void SeeTheLock(Person& person) {
  person.SeeWindow("frmPass");
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
  static const auto pressCancel = [](Person& person) { person.Click(u"cmdCancel"_qs); };
  static const auto closeWindow = [](Person& person) { person.CloseWindow(); };
  static const auto endBySystem = [](Person&) { raise(SIGTERM); };
  static const std::vector<Sitting> all = {
      {"The first run, the first pages", {FirstRun, WriteTheFirstPages}, pressExit},
      {"Everything as it was left, and its export", {ReadItAgain, ExportTheDiary}, closeWindow},
      {"Three framed pictures, one dragged", {OpenMyDiary, LayPictures}, closeAndPressExit},
      {"The pictures where they lay, one removed, and a page on paper",
       {OpenMyDiary, FindPicturesAgain, PrintAPage},
       closeAndPressExit},
      {"More journals, and one removed; ended by the system", {AddAndDelete}, endBySystem},
      {"What the system's order has stored, the themes, another password",
       {ComeBackAfterTheSystemEndedIt, TryTheThemes, ChangeThePassword},
       pressExit},
      {"Only the new password opens, and a stray journal stands there",
       {ComeBackWithTheNewPassword},
       closeAndPressExit},
      {"Stray journals, and help in every window", {AskForHelpEverywhere}, pressExit, Sample("5-strays")},
      {"A diary from elsewhere: index, calendar, font, emoticon, paper",
       {OpenTheDiaryFromElsewhere, FindAndDateAPage, DressTheText, ChangeTheProperties},
       closeAndPressExit,
       Sample("2-three-journals")},
      {"A year later", {ReadAYear}, closeAndPressExit, StageAYear},
      {"Everything by keys, and nothing by the mouse",
       {LiveByKeys},
       [](Person& person) {
         person.Close("frmBookcase");
         person.CloseWindow();
       },
       StageForKeys},
      {"Left at the lock", {SeeTheLock}, pressCancel, Sample("1-first-diary")},
  };
  return all;
}
