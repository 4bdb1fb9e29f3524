#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include "app/HelpWindow.h"
#include "bookcase/frmBookcase.h"
#include "editor/Toolbar.h"
#include "pictures/PictureSlots.h"
#include "tools/tour/Steps.h"

namespace {

void AnswerBox(Person& person, const QString& text, const QString& keys) {
  person.Expect(u"a message box: "_qs + text, [&] {
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box && box->isActiveWindow() && box->text() == text;
  });
  person.Press(keys);
  person.Expect(u"the box to go: "_qs + text, [] { return !QApplication::activeModalWidget(); });
}

void ExpectFocus(Person& person, const QString& control) {
  person.Expect(u"the keyboard at "_qs + control, [&] {
    const QWidget* focus = QApplication::focusWidget();
    return focus && focus->objectName() == control;
  });
}

// From the page to a button of the toolbar, which is pressed.
void Command(Person& person, const char* button) {
  const QString key = QLatin1String(button);
  QString keys = u"F6"_qs;
  person.Do([&] {
    const Toolbar& toolbar = *Book().Toolbar1;
    for (int position = 1; toolbar.Button(position) != toolbar.Button(key); ++position)
      if (toolbar.Button(position)) keys += u" Right"_qs;
  });
  person.Press(keys);
  ExpectFocus(person, key);
  person.Press(u"space"_qs);
}

void BeginADiary(Person& person) {
  person.SeeWindow("frmInitJournal");
  person.Enter(u"Keys\tp\tp"_qs, "frmBookcase");
  person.Press(u"Tab Tab"_qs);
  ExpectFocus(person, u"cmdAdd"_qs);
  person.Press(u"space"_qs);
  person.SeeWindow("frmNewJournal");
  person.Enter(u"Second"_qs, "frmBookcase");
  ExpectFocus(person, u"ListView1"_qs);
  person.Press(u"Delete"_qs);
  AnswerBox(person, u"Are you sure you want to delete j00001.tqf"_qs, u"alt+n"_qs);
  person.Press(u"Left"_qs);
  person.Enter({}, "frmJournal");
}

void WriteAndTurn(Person& person) {
  person.Type(u"One."_qs);
  Command(person, "btnNewPage");
  AnswerBox(person, u"Add (new) page 2?"_qs, u"Return"_qs);
  ExpectPage(person, u"Page 2"_qs, {});
  person.Type(u"Two."_qs);
  Command(person, "btnBack");
  ExpectPage(person, u"Page 1"_qs, u"One."_qs);
  person.Press(u"Right space Escape"_qs);  // along the toolbar
  ExpectPage(person, u"Page 2"_qs, u"Two."_qs);
  person.Press(u"shift+F6"_qs);
  ExpectFocus(person, u"txtM"_qs);
}

void GoAndDate(Person& person) {
  Command(person, "btnIndex");
  person.SeeWindow("frmIndex");
  person.Press(u"Down Right Down Right Down"_qs);
  person.Enter({}, "frmJournal");
  ExpectPage(person, u"Page 1"_qs, u"One."_qs);
  const double before = Pages.at(1).PageDate;
  Command(person, "btnCal");
  person.SeeWindow("frmCal");
  person.Press(u"Left Prior"_qs);
  person.Enter({}, "frmJournal");
  person.Expect(u"an earlier date"_qs, [before] { return Pages.at(1).PageDate < before - 27; });
}

void LayAndMoveAPhotograph(Person& person) {
  Command(person, "btnInsertPicture");
  person.SeeWindow("OpenFileDialog");
  person.Enter(QStringLiteral(ASSETS "/year/lake.jpg"), "frmAddPicture");
  person.Press(u"Down"_qs);
  person.Enter({}, "frmJournal");
  person.Press(u"F6 F6"_qs);
  ExpectFocus(person, u"picDisplayPics(0)"_qs);
  QPoint place;
  person.Do([&] { place = Book().face->pictures->picDisplayPics[0]->pos(); });
  person.Press(u"Left Down Down ctrl+Left"_qs);
  person.Expect(u"the photograph moved"_qs, [place] {
    return Book().face->pictures->picDisplayPics[0]->pos() == place + QPoint(-9, 16) &&
           Pictures.back().Left == place.x() - 9;
  });
  person.Shot("moved-by-keys");
  person.Press(u"Delete"_qs);
  person.Expect(u"no photograph"_qs, [] { return Book().face->pictures->Stops().empty(); });
  ExpectFocus(person, u"txtM"_qs);
}

void InsertAnEmoticon(Person& person) {
  Command(person, "btnInsertEmoticon");
  person.SeeWindow("frmEmoticons");
  person.Press(u"Right Right Down space"_qs);
  person.SeeWindow("frmJournal");
  ExpectPage(person, u"Page 1"_qs, u"One."_qs + QChar::ObjectReplacementCharacter);
}

void ReadTheHelp(Person& person) {
  person.Press(u"F1"_qs);
  person.SeeWindow("HelpWindow");
  person.Press(u"ctrl+f"_qs);
  ExpectFocus(person, u"txtFind"_qs);
  person.Type(u"Without a mouse\n"_qs);
  person.Expect(u"the words in the help"_qs, [] {
    return static_cast<HelpWindow*>(QApplication::activeWindow())->Browser->textCursor().hasSelection();
  });
  person.Escape("frmJournal");
}

}  // namespace

void LiveByKeys(Person& person) {
  BeginADiary(person);
  WriteAndTurn(person);
  GoAndDate(person);
  LayAndMoveAPhotograph(person);
  InsertAnEmoticon(person);
  ReadTheHelp(person);
}

void StageForKeys() {
  for (const char* folder : {"emoticons", "frames"})
    QFile::link(QStringLiteral(ASSETS "/") + QLatin1String(folder),
                QFile::decodeName(platform::PathOf(folder).c_str()));
  QFile::copy(QStringLiteral(HELP), QFile::decodeName(platform::PathOf("THORNQUILL.HLP").c_str()));
}
