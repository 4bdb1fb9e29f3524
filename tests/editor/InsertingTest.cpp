// The font of the text, and the emoticons that go into it.
#include <filesystem>
#include <sys/stat.h>

#include <QtCore/QCryptographicHash>
#include <QtGui/QClipboard>

#include "editor/frmEmoticons.h"
#include "pictures/PictureToAdd.h"
#include "pictures/frmAddPicture.h"
#include "tests/editor/OpenBook.h"

namespace {

using platform::FontValues;
using Inserting = fixture::OpenBook;

TEST_F(Inserting, AMixedFontGoesInAsDefaultsAndComesBackPlainInItsOwnFonts) {
  FontValues asked;
  platform::DialogResult<FontValues> answer{{-7, "no fonts"}};
  platform::SetFontChooser([&](const platform::FontQuestion& question) {
    asked = question.start;
    if (answer.end.number == 0) answer.choice = asked;
    return answer;
  });
  Begin({"{\\f0\\fs25 one }{\\b\\i\\ul\\strike\\fs40\\cf0 two}", "one"});
  const FontValues two{u"Verdana"_qs, 20, true, true, true, true, 0};
  text().SetSelStart(4);
  text().SetSelLength(3);
  Press("btnFont");
  EXPECT_EQ(asked, two);
  EXPECT_EQ(answers.texts(), fixture::Texts{"Error-7 selecting font.\r\nno fonts"});
  EXPECT_EQ(PageDirty, False);
  answer.end = {};
  text().SetSelStart(2);
  text().SetSelLength(4);
  window().SelectFont();
  EXPECT_EQ(asked, (FontValues{u"Verdana"_qs, 0, false, false, false, false, 0}));
  EXPECT_EQ(PageDirty, True);
  EXPECT_EQ(FontAt(2), (FontValues{u"Verdana"_qs, 12.5}));
  EXPECT_EQ(FontAt(4), (FontValues{u"Verdana"_qs, 20})) << "plain, but of its own size";
  EXPECT_EQ(FontAt(6), two);
  text().undo();
  EXPECT_EQ(FontAt(4), two) << "one step back undoes it all";
  platform::SetFontChooser({});
}

class EmoticonTest : public fixture::OpenBook {
 protected:
  // Blue pictures of 10 x 10 whose first column is transparent.
  void Put(int count) {
    const QString path = QString::fromStdString(folder.PathOf("emoticons"));
    QDir().mkpath(path);
    QImage picture(10, 10, QImage::Format_ARGB32);
    picture.fill(Qt::blue);
    for (int y = 0; y < 10; ++y) picture.setPixelColor(0, y, Qt::transparent);
    for (int i = 0; i < count; ++i) picture.save(u"%1/e%2.gif"_qs.arg(path).arg(1000 + i), "PNG");
  }
  void InPicker(const std::function<void(frmEmoticons&)>& act) { In("btnInsertEmoticon", act); }
  // "Page 01/02: 60", the number of visible buttons behind it.
  static std::string Screen(const frmEmoticons& picker) {
    const auto& buttons = picker.cmdEmoticons;
    const auto shown =
        std::count_if(buttons.begin(), buttons.end(), [](const auto* button) { return button->isVisible(); });
    const std::string page = picker.cmdPage->text().toStdString();
    return page + (picker.cmdPage->isVisible() ? ": " : " hidden: ") + std::to_string(shown);
  }
};

TEST_F(EmoticonTest, SixtyToAScreenAndAFullLastScreenHasAnEmptyOneBehindIt) {
  Begin({"cover", "one"});
  Put(60);
  InPicker([](frmEmoticons& picker) {
    EXPECT_EQ(Screen(picker), "Page 01/02 hidden: 60");
    QTest::keyClick(&picker, Qt::Key_Escape);
  });
  Put(120);
  InPicker([](frmEmoticons& picker) {
    picker.cmdEmoticons[55]->setFocus();
    for (QPushButton* target : {picker.cmdPage, picker.cmdEmoticons[55]}) {
      QTest::keyClick(picker.focusWidget(), target == picker.cmdPage ? Qt::Key_Down : Qt::Key_Up);
      EXPECT_EQ(picker.focusWidget(), target);
    }
    for (const char* screen : {"Page 01/03: 60", "Page 02/03: 60", "Page 03/03: 0", "Page 01/03: 60"}) {
      EXPECT_EQ(Screen(picker), screen);
      Click(picker.cmdPage);
    }
    QTest::keyClick(&picker, Qt::Key_Escape);
  });
}

// Run once more at a scaling of 2.
TEST_F(EmoticonTest, HasTwiceAsManyPixelsOnASharpScreenAndTheSamePlaceInTheText) {
  Begin({"cover", "one"});
  Put(1);
  QDir().mkpath(QString::fromStdString(folder.PathOf("emoticons/48")));
  QImage sharp(20, 20, QImage::Format_RGB32);
  sharp.fill(Qt::red);
  sharp.save(QString::fromStdString(folder.PathOf("emoticons/48/e1000.gif")), "PNG");
  const auto sum = QCryptographicHash::hash(folder.Read("emoticons/e1000.gif"), QCryptographicHash::Md5);
  for (const bool isOfThisFile : {false, true}) {
    if (isOfThisFile) folder.Write("emoticons/48/md5sums", sum.toHex().toStdString() + "  e1000.gif\n");
    InPicker([](frmEmoticons& picker) { Click(picker.cmdEmoticons[0]); });
    QCoreApplication::processEvents();
    const bool isSharp = isOfThisFile && window().devicePixelRatioF() > 1;
    EXPECT_EQ(QGuiApplication::clipboard()->image().width(), isSharp ? 20 : 10) << isOfThisFile;
    EXPECT_EQ(text().textCursor().charFormat().toImageFormat().width(), 10);
  }
}

TEST_F(EmoticonTest, ShowsNoneThatIsNoPictureAndPutsOneOnThePapersColour) {
  const auto row = Begin({"cover", "one"});
  Press("btnInsertEmoticon");
  EXPECT_NE(answers.last().find(folder.PathOf("emoticons")), std::string::npos) << answers.last();
  Put(2);
  for (const char* name : {"B.GIF", "c.png"}) folder.Write("emoticons/" + std::string(name), "no picture");
  EXPECT_EQ(mkfifo(folder.PathOf("emoticons/z.gif").c_str(), 0600), 0);
  const std::string undecodable = folder.PathOf("\xE9t\xE9");
  std::filesystem::create_directory(undecodable);
  std::filesystem::rename(folder.PathOf("emoticons"), undecodable + "/emoticons");
  platform::SetProgramFolder(undecodable);
  text().SetBackColor(0x99CCFF);
  text().SetSelStart(1);
  text().SetSelLength(3);
  InPicker([](frmEmoticons& picker) {
    EXPECT_EQ(Screen(picker), "Page 01/01 hidden: 2");
    EXPECT_EQ(picker.cmdEmoticons[1]->accessibleName(), u"e1000") << "in the order of their bytes";
    QTest::keyClick(picker.focusWidget(), Qt::Key_Right);
    QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
  });
  platform::SetProgramFolder(folder.path());
  std::filesystem::remove_all(undecodable);
  EXPECT_EQ(QApplication::clipboard()->image().pixelColor(0, 0), QColor(0xFF, 0xCC, 0x99));
  Press("btnFirstPage");
  EXPECT_EQ(TextsIn(row)[0], "c\uFFFCr");
}

// Another program offers files. Each Add Picture that opens is answered by pressing its default button or
// Escape.
class FilesOnAPage : public fixture::OpenBook {
 protected:
  FilesOnAPage() {
    for (const char* name : {"frames", "folder"}) QDir().mkpath(QString::fromStdString(folder.PathOf(name)));
    for (const char* name : {"a.png", "b%20.png"}) folder.WritePicture(name);
    folder.Write("note.txt", "\xE4 note\n");
    folder.Write("letter.odd", "{\\rtf1 \\b bold}");
    folder.Write("data", std::string("PK\3\4", 4));
    QObject::connect(&answering_, &QTimer::timeout, [this] {
      auto* dialog = qobject_cast<frmAddPicture*>(QApplication::activeModalWidget());
      if (!dialog || !dialog->cmdOK->isEnabled()) return;
      opened += AddFile.substr(AddFile.rfind('/')) + (inserts ? " in" : " no");
      QTest::keyClick(dialog, inserts ? Qt::Key_Return : Qt::Key_Escape);
    });
    answering_.start(1);
  }
  std::unique_ptr<QMimeData> Offer(const fixture::Texts& names) const {
    QByteArray list;
    for (const std::string& name : names)
      list += name.find(':') == std::string::npos
                  ? QUrl::fromLocalFile(QString::fromStdString(folder.PathOf(name))).toEncoded() + "\r\n"
                  : QByteArray::fromStdString(name) + "\r\n";
    auto offer = std::make_unique<QMimeData>();
    offer->setData(u"text/uri-list"_qs, list);
    return offer;
  }
  // What becomes of it; a move would cost its owner the file.
  Qt::DropAction Drop(QWidget* target, const QMimeData& offer) {
    const auto all = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent over({30, 30}, all, &offer, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &over);
    QDropEvent drop({30, 30}, all, &offer, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(target, &drop);
    QTest::qWait(20);
    return over.isAccepted() && drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
  }
  std::string Opened() { return std::exchange(opened, {}); }

  bool inserts = false;
  std::string opened;

 private:
  QTimer answering_;
};

TEST_F(FilesOnAPage, OpenAddPictureOneAfterTheOtherAndTextsGoInAsPasted) {
  Begin({"cover", "one"});
  for (QWidget* target : {static_cast<QWidget*>(window().face), text().viewport()}) {
    EXPECT_EQ(Drop(target, *Offer({"a.png", "b%20.png"})), Qt::CopyAction);
    EXPECT_EQ(Opened(), "/a.png no/b%20.png no");
  }
  EXPECT_EQ(PictureCount, 0);
  inserts = true;
  text().SetSelStart(5);
  EXPECT_EQ(Drop(window().face, *Offer({"note.txt", "a.png", "letter.odd"})), Qt::CopyAction);
  EXPECT_EQ(Text(), "cover\u00E4 note\nbold");
  EXPECT_EQ(FontAt(12).bold, true);
  EXPECT_EQ(Pictures.back().PictureFile, folder.PathOf("a.png"));
  auto copied = std::make_unique<QMimeData>();
  copied->setText(u"a.png"_qs);
  copied->setData(u"x-special/gnome-copied-files"_qs,
                  "copy\n" + Offer({"a.png"})->data(u"text/uri-list"_qs).trimmed());
  QApplication::clipboard()->setMimeData(copied.release());
  QTest::keySequence(&text(), QKeySequence::Paste);
  ASSERT_TRUE(QTest::qWaitFor([&] { return PictureCount == 2; }));
  EXPECT_EQ(Opened(), "/a.png in/a.png in");
  EXPECT_EQ(answers.texts(), fixture::Texts());
}

TEST_F(FilesOnAPage, ThatCannotBeTakenAreToldTogetherAndALinkIsText) {
  Begin({"cover", "one"});
  inserts = true;
  PictureCount = 6;
  Pictures.resize(7);
  for (PagePicture& row : Pictures) row.JournalFile = FileOf(1);
  Drop(window().face, *Offer({"folder", "sftp://far/a.png", "gone.png", "data", "a.png", "b%20.png"}));
  EXPECT_EQ(Opened(), "/a.png in");
  ASSERT_EQ(answers.messages.size(), 1U);
  for (const char* words : {"/folder\n", "sftp://far/a.png\nIt lies on another", "/gone.png\n",
                            "/data\nIt is neither", "/b%20.png\nMaximum pictures"})
    EXPECT_NE(answers.last().find(words), std::string::npos) << words << answers.last();
  EXPECT_EQ(Text(), "cover");
  auto link = Offer({"https://example.org/"});
  link->setText(u" a link"_qs);
  text().SetSelStart(5);
  QApplication::clipboard()->setMimeData(link.release());
  QTest::keySequence(&text(), QKeySequence::Paste);
  EXPECT_EQ(Text(), "cover a link");
}

}  // namespace
