#include "editor/frmJournal.h"

#include <algorithm>
#include <vector>

#include <QtGui/QKeyEvent>

#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/SelectFont.h"
#include "editor/Toolbar.h"
#include "editor/frmCal.h"
#include "editor/frmEmoticons.h"
#include "editor/frmIndex.h"
#include "look/PictureBox.h"
#include "pictures/AddPicture.h"
#include "pictures/PictureSlots.h"
#include "platform/desktop/Keystroke.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"

frmJournal::frmJournal()
    : Form(Kind::Window, QStringLiteral("frmJournal"), QStringLiteral("Thorn Quill"), PageFace::DesignWidth,
           PageFace::DesignHeight) {
  face = new PageFace(this);
  face->setGeometry(rect());
  Toolbar1 = new Toolbar(face->picTop);
  Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
  Toolbar1->setAccessibleName(QStringLiteral("the journal's commands"));
  Toolbar1->setGeometry(look::Pixels(30), look::Pixels(30), look::Pixels(8400), look::Pixels(570));
  connect(Toolbar1, &Toolbar::ButtonClick, this, &frmJournal::Toolbar1_ButtonClick);
  face->txtM->setFocus();
}

void frmJournal::PageBack() {
  GoBackPage();
}
void frmJournal::PageFirst() {
  GoFirstPage();
}
void frmJournal::SelectFont() {
  ChangeSelectionFont();
}
void frmJournal::OpenIndex() {
  ShowJournalIndex();
}
void frmJournal::OpenCalendar() {
  look::The<frmCal>().Cal1->SetValue(Pages.at(static_cast<std::size_t>(CurrentPage)).PageDate);
  look::The<frmCal>().ShowModal();
}
void frmJournal::InsertPicture() {
  StartAddPicture();
}
void frmJournal::OpenJournalProperties() {
  Q_EMIT JournalPropertiesRequested();
}
void frmJournal::PageLast() {
  GoLastPage();
}
void frmJournal::PageNew() {
  AddNewPage();
}
void frmJournal::PageNext() {
  GoNextPage();
}
void frmJournal::CloseBook() {
  CloseJournal();
}
void frmJournal::OpenOptions() {
  Q_EMIT OptionsRequested();
}
void frmJournal::SwitchToolbarCaptions() {
  ToggleToolbarCaptions();
}

// Unlike in the design of a window, the one instance stays loaded for the next journal. The emptied text box
// raises its change as ever, so PageDirty stands set until the next page is shown.
void frmJournal::CloseBox() {
  CloseJournal(StoreCurrentPage());
  if (PagesJournal != 0) return;  // the file could not be written, and the journal is still open
  ForgetPagePictures();
  PageInHand::PagesForgotten();
  face->txtM->SetTextRTF({});
}

void frmJournal::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_F6) return Form::keyPressEvent(event);
  std::vector<QWidget*> stops = {face->txtM, Toolbar1->Button(1)};
  for (QWidget* picture : face->pictures->Stops()) stops.push_back(picture);
  QWidget* const here = Toolbar1->isAncestorOf(focusWidget()) ? Toolbar1->Button(1) : focusWidget();
  const auto stop = std::find(stops.begin(), stops.end(), here) - stops.begin();
  const auto count = static_cast<std::ptrdiff_t>(stops.size());
  const auto next = stop + (event->modifiers() & Qt::ShiftModifier ? count - 1 : 1);
  stops[static_cast<std::size_t>(next % count)]->setFocus(Qt::ShortcutFocusReason);
}

void frmJournal::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  face->setGeometry(rect());
}

// What puts another page into the text box, or looks one up, stores the page first; what acts on the page in
// place stores nothing. Behind a command with a window of its own the keyboard is in the page again; one that
// turns pages leaves it on its button, to be pressed once more.
void frmJournal::Toolbar1_ButtonClick(const QString& key) {
  struct Command {
    const char16_t* key;
    bool stores;
    bool leadsToThePage;
    void (*act)(frmJournal&);
  };
  static constexpr Command commands[] = {
      {u"btnNewPage", true, false, [](frmJournal&) { AddNewPage(); }},
      {u"btnFirstPage", true, false, [](frmJournal&) { GoFirstPage(); }},
      {u"btnBack", true, false, [](frmJournal&) { GoBackPage(); }},
      {u"btnNext", true, false, [](frmJournal&) { GoNextPage(); }},
      {u"btnLastPage", true, false, [](frmJournal&) { GoLastPage(); }},
      {u"btnPrint", false, true, [](frmJournal& window) { Q_EMIT window.PrintRequested(); }},
      {u"btnIndex", true, true, [](frmJournal&) { ShowJournalIndex(); }},
      {u"btnCal", true, true, [](frmJournal& window) { window.OpenCalendar(); }},
      {u"btnInsertEmoticon", false, true, [](frmJournal&) { ShowEmoticonPicker(); }},
      {u"btnInsertPicture", false, true, [](frmJournal&) { StartAddPicture(); }},
      {u"btnFont", false, true, [](frmJournal&) { ChangeSelectionFont(); }},
      {u"btnOptions", false, true, [](frmJournal& window) { window.OpenOptions(); }},
      {u"btnJournalProperties", false, true, [](frmJournal& window) { window.OpenJournalProperties(); }},
      {u"btnHelp", false, false, [](frmJournal&) { platform::SendKey(Qt::Key_F1); }},
  };
  for (const Command& command : commands) {
    if (key != QStringView(command.key)) continue;
    face->txtM->CommitComposition();
    if (command.stores) StoreCurrentPage();
    if (command.leadsToThePage) face->txtM->setFocus();
    command.act(*this);
  }
}

// The positions and texts are those of an older toolbar, and are kept: captions come back other than they
// went, and only the strip changes its height.
void frmJournal::ToggleToolbarCaptions() {
  if (Toolbar1->Caption(1) == u"New") {
    for (int position = 1; position <= 11; ++position) Toolbar1->SetCaption(position, {});
    face->SetHeadHeight(375);
    return;
  }
  const std::pair<int, QString> captions[] = {
      {1, QStringLiteral("New")},  {2, QStringLiteral("Title")},    {3, QStringLiteral("Back")},
      {4, QStringLiteral("Next")}, {5, QStringLiteral("Last")},     {7, QStringLiteral("Font")},
      {8, QStringLiteral("Pic")},  {10, QStringLiteral("Options")}, {11, QStringLiteral("Prop")},
  };
  for (const auto& [position, caption] : captions) Toolbar1->SetCaption(position, caption);
  face->SetHeadHeight(1200);
}
