// Every window as it comes up: what stands where on it, what a screen reader says, and where its help leads.
#include <fstream>
#include <map>
#include <sstream>

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformtheme.h>
#include <QtGui/qpa/qwindowsysteminterface.h>

#include "app/Help.h"
#include "app/HelpWindow.h"
#include "app/frmOptions.h"
#include "bookcase/frmAbout.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmInitJournal.h"
#include "bookcase/frmJournalProp.h"
#include "bookcase/frmNewJournal.h"
#include "editor/PageFace.h"
#include "editor/frmCal.h"
#include "editor/frmEmoticons.h"
#include "editor/frmIndex.h"
#include "editor/frmJournal.h"
#include "lock/frmPass.h"
#include "lock/frmPassChange.h"
#include "look/Dress.h"
#include "look/Growth.h"
#include "look/Progress.h"
#include "look/Shortening.h"
#include "look/frmWait.h"
#include "output/PrintDialog.h"
#include "output/frmExport.h"
#include "pictures/frmAddPicture.h"
#include "platform/dialogs/ColorDialog.h"
#include "platform/dialogs/FontDialog.h"
#include "platform/dialogs/FontPicker.h"
#include "richtext/box/RichTextBox.h"
#include "store/NewJournals.h"
#include "tests/support/Windows.h"

namespace {

// What stands still, what holds others together, and the toolkit's own bars have nothing to say.
bool Speaks(const QAccessibleInterface& part) {
  using enum QAccessible::Role;
  static const QSet<QAccessible::Role> speakers{PushButton,   CheckBox, RadioButton, ComboBox, SpinBox,
                                                EditableText, Link,     List,        Tree,     Table,
                                                ListItem,     TreeItem, Cell,        Graphic,  ButtonMenu};
  return speakers.contains(part.role()) && !part.state().invisible;
}

// The arrows lead on from the one of its group.
const QWidget* Chosen(const QWidget& radio) {
  for (const auto* each : radio.parentWidget()->findChildren<QRadioButton*>())
    if (each->isChecked()) return each;
  return nullptr;
}

// What can be pressed or written in can be so by a screen reader as well, and by the keyboard: it is a stop
// of Tab, or a part of one. Of the bookcase's quill the button About is the stop.
void ExpectWays(QAccessibleInterface& part, const std::string& where) {
  using enum QAccessible::Role;
  static const QSet<QAccessible::Role> pressed{PushButton, CheckBox, RadioButton, ButtonMenu, Link};
  const auto* control = qobject_cast<QWidget*>(part.object());
  if (!control || !control->isEnabled() || control->objectName() == u"Image2") return;
  const auto* actions = part.actionInterface();
  const bool isWritten = part.role() == EditableText;
  if (!isWritten && !pressed.contains(part.role())) return;
  EXPECT_TRUE(isWritten ? part.textInterface() != nullptr : actions && !actions->actionNames().isEmpty())
      << where;
  if (part.role() == RadioButton) control = Chosen(*control);
  while (control && !(control->focusPolicy() & Qt::TabFocus)) control = control->parentWidget();
  EXPECT_TRUE(control && !control->isWindow()) << where << " is out of the keyboard's reach";
}

void ExpectNames(QAccessibleInterface* part, const QString& path, int& spoken) {
  const QString name = part->text(QAccessible::Name).trimmed();
  const QString here = path + u'/' + (part->object() ? part->object()->objectName() : name);
  if (Speaks(*part)) {
    ++spoken;
    EXPECT_NE(name, QString()) << here.toStdString() << ", of role " << part->role();
    ExpectWays(*part, here.toStdString());
  }
  for (int i = 0; i < part->childCount(); ++i)
    if (QAccessibleInterface* child = part->child(i)) ExpectNames(child, here, spoken);
}

void ExpectNames(QWidget& window) {
  window.show();
  int spoken = 0;
  ExpectNames(QAccessible::queryAccessibleInterface(&window), {}, spoken);
  EXPECT_GT(spoken, 0) << window.objectName().toStdString();
  window.hide();
}

// What is on a button or a label besides words.
QSize PictureOn(const QWidget& control) {
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  const auto picture = control.property("pixmap").value<QPixmap>();
  return button ? button->icon().pixmap(button->iconSize()).size() : picture.size();
}

// "  cmdOpen 16,92 120x30 text 'Open' default off hidden": a word only where it is so, and no place where the
// letters of the desktop make it.
std::string RowOf(const QWidget& control, bool isPlaced) {
  const QRect place = control.geometry();
  QString row = control.objectName();
  if (isPlaced && control.size() != control.sizeHint())
    row += u" %1,%2 %3x%4"_qs.arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
  for (const char* name : {"text", "title", "placeholderText", "accessibleName", "toolTip"})
    if (const QString words = control.property(name).toString(); !words.isEmpty())
      row += u" %1 '%2'"_qs.arg(QLatin1String(name), words);
  if (const QSize size = PictureOn(control); !size.isEmpty())
    row += u" picture %1x%2"_qs.arg(size.width()).arg(size.height());
  for (const char* name : {"default", "checked"})
    if (control.property(name).toBool()) row += u' ' + QLatin1String(name);
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label && label->buddy()) row += u" for "_qs + label->buddy()->objectName();
  if (control.font().bold()) row += u" bold"_qs;
  if (!control.isEnabled()) row += u" off"_qs;
  if (control.isHidden()) row += u" hidden"_qs;
  return row.toStdString() + '\n';
}

// The window, its controls, and the way of the Tab key.
void Draw(const QWidget& window, std::string& sheet) {
  const bool isPlaced = !window.layout() && window.objectName() != u"frmExport";  // which flows down
  const auto isOurs = [](const QWidget* control) {
    const auto* label = qobject_cast<const QLabel*>(control);
    const QString name = control->objectName();
    return (label && label->buddy()) || (!name.isEmpty() && !name.startsWith(u"qt_"));
  };
  sheet += window.windowTitle().toStdString() + ": " + RowOf(window, isPlaced);
  for (const QWidget* control : window.findChildren<QWidget*>())
    if (isOurs(control)) sheet += "  " + RowOf(*control, isPlaced);
  sheet += "  Tab:";
  for (const QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    if (isOurs(next) && next->focusPolicy() & Qt::TabFocus) sheet += ' ' + next->objectName().toStdString();
  sheet += '\n';
}

// Over a diary of two pages.
class EveryWindow : public fixture::Windows {
 protected:
  EveryWindow() {
    MakeFirstJournal("", "p");
    Pages.resize(2);
    PageCount = 1;
    Staged().CurrentJournal = 1;
    QDir().mkpath(QString::fromStdString(folder.PathOf("emoticons")));
    folder.WritePicture("emoticons/1-smile.gif");
  }
  static void ForAll(const std::function<void(look::Form&)>& act) {
    ForEach<frmPass, frmInitJournal, frmBookcase, frmNewJournal, frmJournalProp, frmAbout, frmOptions,
            frmPassChange, frmJournal, frmIndex, frmCal, frmEmoticons, frmAddPicture, frmExport>(act);
  }

 private:
  template <class... All>
  static void ForEach(const std::function<void(look::Form&)>& act) {
    (act(look::The<All>()), ...);
  }
};

TEST_F(EveryWindow, HasANameForEachControlAndEntry) {
  ForAll([](QWidget& window) { ExpectNames(window); });
  HelpWindow help(u"<h2><a name=\"a\">A chapter</a></h2>"_qs);
  ExpectNames(help);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(help.Browser)->role(), QAccessible::EditableText);
}

// As far as the screen lets it, and its letters no further: to 20 points on a large one.
TEST_F(EveryWindow, GrowsAsAWholeWithTheDesktopsFont) {
  const QFont design = QApplication::font(), large(design.family(), 20);
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  EXPECT_EQ(look::Growth(), 1);
  EXPECT_EQ(look::GrowthFor(large, {2560, 1440}), 2.25);
  EXPECT_EQ(look::FontFor(large, {2560, 1440}), large);
  EXPECT_EQ(look::GrowthFor(large, {1366, 768}), 1.5);
  for (const int points : {11, 15, 20}) {
    QFont larger = design;
    larger.setPointSize(points);
    const double before = look::Growth();
    QApplication::setFont(larger);
    EXPECT_EQ(look::Growth(), before) << "while windows stand";
    look::UnloadAllForms();
    QString cut;
    ForAll([&](look::Form& window) {
      EXPECT_LE(window.minimumHeight(), screen.height()) << window.objectName().toStdString();
      for (const QWidget* control : window.findChildren<QWidget*>())
        if (!control->isHidden() && !qobject_cast<const QToolButton*>(control))
          cut += look::OutgrownText(*control);
    });
    EXPECT_EQ(cut.toStdString(), "") << points;
    EXPECT_EQ(look::The<frmBookcase>().cmdOpen->width(), look::Grown(120));
    EXPECT_EQ(look::The<frmJournal>().face->txtM->pos(), QPoint(look::Grown(66), look::Grown(58)));
    QApplication::setFont(design);
    look::UnloadAllForms();
  }
}

// Which block until they are answered: hiding them ends them.
void ForEachOfTheToolkit(const std::function<void(QWidget&)>& act) {
  platform::SetMessageAnswerer({});
  platform::SetOpenFileChooser({});
  const std::function<void()> dialogs[] = {
      [] {
        platform::ShowMessage({"Really?", platform::Buttons::YesNo, platform::BoxIcon::Stop});
      },
      [] {
        platform::AskForFile({"Open", platform::FiltersFrom("All Files|*.*")});
      },
      [] { platform::AskForColor({}); }, [] { platform::AskForFont({}); }, [] { ShowPrintDialog({}); }};
  for (const auto& ask : dialogs) {
    QTimer::singleShot(0, [&] {
      QWidget& dialog = *QApplication::activeModalWidget();
      act(dialog);
      dialog.hide();
    });
    ask();
  }
}

TEST_F(EveryWindow, OfTheDesktopHasANameForEachControlToo) {
  ForEachOfTheToolkit([](QWidget& dialog) { ExpectNames(dialog); });
}

// A desktop's colours, which come to the toolkit as those of a real one do.
class Desktop : public QPlatformTheme {
 public:
  explicit Desktop(const QPalette& colors) : colors_(colors) { Reign(this); }
  ~Desktop() override { Reign(before_); }
  Q_DISABLE_COPY_MOVE(Desktop)
  const QPalette* palette(Palette) const override { return &colors_; }
  const QFont* font(Font kind) const override { return before_->font(kind); }
  QVariant themeHint(ThemeHint hint) const override { return before_->themeHint(hint); }

 private:
  static void Reign(QPlatformTheme* theme) {
    QGuiApplicationPrivate::platform_theme = theme;
    QWindowSystemInterface::handleThemeChange(nullptr);
    QCoreApplication::processEvents();
  }
  QPlatformTheme* const before_ = QGuiApplicationPrivate::platform_theme;
  const QPalette colors_;
};

TEST_F(EveryWindow, WearsTheSameToThePixelOnALightAndOnADarkDesktop) {
  QApplication::setCursorFlashTime(0);
  look::DressTheProgram();
  const auto grabbed = [](const QPalette& colors) {
    const Desktop desktop(colors);
    std::map<QString, QImage> pictures;
    const auto grab = [&](QWidget& window) { pictures[window.objectName()] = window.grab().toImage(); };
    ForAll(grab);
    HelpWindow help(u"<h2><a name=\"a\">A chapter</a></h2>"_qs);
    grab(help);
    grab(*std::unique_ptr<QMenu>(help.Browser->createStandardContextMenu()));
    ForEachOfTheToolkit(grab);
    QToolTip::showText({5, 5}, u"A tip"_qs, &help);
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->inherits("QTipLabel")) {
        grab(*std::unique_ptr<QWidget>(window));
        break;
      }
    look::UnloadAllForms();
    return pictures;
  };
  const auto light = grabbed(QPalette(QColor(0xef, 0xf0, 0xf1))),
             dark = grabbed(QPalette(QColor(0x31, 0x36, 0x3b)));
  EXPECT_EQ(light.size(), 22u);
  for (const auto& [name, picture] : light) EXPECT_EQ(picture, dark.at(name)) << name.toStdString();
}

TEST_F(EveryWindow, StandsAsOnItsSheet) {
  std::string sheet, is, shouldBe;
  ForAll([&](QWidget& window) { Draw(window, sheet); });
  Draw(look::The<look::frmWait>(), sheet);
  Draw(look::frmProgress(), sheet);
  Draw(HelpWindow(u"<h2><a name=\"a\">A chapter</a></h2>"_qs), sheet);
  Draw(platform::FontPicker({}, nullptr), sheet);
  std::istringstream drawn(sheet);
  std::ifstream designed(fixture::PathOfSample("examples/windows.txt"));
  while (std::getline(designed, shouldBe) && std::getline(drawn, is)) EXPECT_EQ(is, shouldBe);
  EXPECT_TRUE(!std::getline(drawn, is) && designed.eof()) << "drawn on: " << is;
}

void ExpectHelpInABox(const look::Form& window) {
  platform::SetMessageAnswerer({});
  QTimer::singleShot(0, [&] {
    QWidget* box = QApplication::activeModalWidget();
    QTest::keyClick(box, Qt::Key_F1);
    const auto* help = box->findChild<HelpWindow*>();
    EXPECT_TRUE(help && help->lstContents->currentItem() &&
                help->lstContents->currentItem()->data(Qt::UserRole) == window.objectName())
        << window.objectName().toStdString();
    box->close();
  });
  platform::ShowMessage("asked");
}

// The help comes by the window's button where it has one, by F1 elsewhere, also in a message over it. Those
// stay whose way out is another.
TEST_F(EveryWindow, LeadsToItsChapterOfTheHelpAndGoesByItsButton) {
  QFile::copy(QString::fromStdString(fixture::PathOfSample("../../help/THORNQUILL.HLP")),
              QString::fromStdString(folder.PathOf("THORNQUILL.HLP")));
  AnswerF1();
  QStringList staying;
  ForAll([&](look::Form& window) {
    window.ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* button = window.findChild<QAbstractButton*>(u"cmdHelp"_qs);
    if (!button) button = window.findChild<QAbstractButton*>(u"btnHelp"_qs);
    button ? Click(button) : QTest::keyClick(&window, Qt::Key_F1);
    QCoreApplication::processEvents();
    auto* help = qobject_cast<HelpWindow*>(QApplication::activeWindow());
    ASSERT_TRUE(help) << window.objectName().toStdString();
    EXPECT_EQ(help->lstContents->currentItem()->data(Qt::UserRole), window.objectName());
    for (const auto& dialog : {u"FontDialog"_qs, u"ColorDialog"_qs, u"OpenFileDialog"_qs, u"PrintDialog"_qs})
      EXPECT_TRUE(help->HasTopic(dialog)) << dialog.toStdString();
    help->close();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    ExpectHelpInABox(window);
    const QRegularExpression away(u"^cmd(Cancel|Close)$"_qs);
    for (auto* leave : window.findChildren<QAbstractButton*>(away)) Click(leave);
    if (window.isVisible()) staying += window.objectName();
    window.hide();
    QTest::qWait(0);  // what was closed goes
  });
  EXPECT_EQ(staying.join(u' '), u"frmPass frmBookcase frmJournal frmExport");
}

}  // namespace
