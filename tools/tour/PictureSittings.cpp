#include "tools/tour/PictureSittings.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QPainter>

#include "editor/frmJournal.h"
#include "pictures/frmAddPicture.h"
#include "platform/Files.h"
#include "platform/OpenFileDialog.h"
#include "state/State.h"
#include "store/PictureStore.h"

namespace {

PictureSlots& OnThePage() {
  return *look::The<frmJournal>().face->pictures;
}

QString InTheFolder(const QString& name) {
  return QFile::decodeName(platform::ProgramFolder().c_str()) + QLatin1Char('/') + name;
}

// A sun over hills.
std::string TakePhotograph(const QString& name, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient sky(0, 0, 0, size.height());
  sky.setColorAt(0, QColor(0x5a, 0x8f, 0xd0));
  sky.setColorAt(1, QColor(0xff, 0xd8, 0xa0));
  painter.fillRect(image.rect(), sky);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xff, 0xf4, 0xc0));
  painter.drawEllipse(QPointF(size.width() * 0.7, size.height() * 0.35), 40, 40);
  painter.setBrush(QColor(0x3f, 0x6b, 0x3a));
  painter.drawEllipse(QPointF(size.width() * 0.2, size.height() * 1.1), size.width() * 0.6,
                      size.height() * 0.5);
  painter.setBrush(QColor(0x55, 0x86, 0x44));
  painter.drawEllipse(QPointF(size.width() * 0.9, size.height() * 1.1), size.width() * 0.7,
                      size.height() * 0.4);
  painter.end();
  image.save(InTheFolder(name));
  return QFile::encodeName(InTheFolder(name)).toStdString();
}

void BringFrames() {
  const QDir from(QStringLiteral(FRAMES));
  QDir().mkpath(InTheFolder(QStringLiteral("frames")));
  for (const QString& name : from.entryList({QStringLiteral("*.gif")}))
    QFile::copy(from.filePath(name), InTheFolder(QStringLiteral("frames/") + name));
}

void Add(Person& person, const QString& name, QSize size, int frame) {
  person.Do([&] {
    platform::SetOpenFileChooser([path = TakePhotograph(name, size)](const auto&) { return path; });
  });
  person.Click("btnInsertPicture");
  person.SeeWindow("frmAddPicture");
  person.ClickItem("List1", frame);
  person.Click("cmdResizeFactorDN");
  person.Expect(QStringLiteral("a scale of 24%"),
                [] { return look::The<frmAddPicture>().lblScale->text() == QStringLiteral("Scale: 24%"); });
  person.Shot("a-frame-for-it");
  person.Click("cmdOK");
  person.SeeWindow("frmJournal");
}

// The rows that the file keeps, blank ones left out.
int PicturesKept() {
  int kept = 0;
  for (const PagePicture& row :
       store::DecodePictureStore(platform::ReadFile(platform::PathOf("tqpics.bin"))).rows)
    kept += row.PictureFile.empty() ? 0 : 1;
  return kept;
}

void ExpectPictures(Person& person, int count) {
  person.Expect(QStringLiteral("%1 pictures on the page and in the file").arg(count), [count] {
    int shown = 0;
    for (const QWidget* box : OnThePage().picDisplayPics) shown += box->isVisible() ? 1 : 0;
    return shown == count && PicturesKept() == count;
  });
}

}  // namespace

void LayPictures(Person& person) {
  person.Do(BringFrames);
  Add(person, QStringLiteral("hills.png"), {640, 480}, 1);
  Add(person, QStringLiteral("high hills.png"), {420, 560}, 6);
  Add(person, QStringLiteral("small hills.png"), {360, 360}, 10);
  ExpectPictures(person, 3);
  person.Click("imgFrame(0)");
  person.Shot("three-framed-pictures");
  const QPoint end = person.Drag("imgController(0)", {-330, 330});
  person.Expect(QStringLiteral("the picture where it was dropped"), [end] {
    const QPoint corner = look::The<frmJournal>().frameGeometry().topLeft();
    const QPoint place = OnThePage().picDisplayPics[0]->pos();
    return place == end - corner - QPoint(0, 32) && place == QPoint(Pictures[1].Left, Pictures[1].Top);
  });
  person.Click("txtM");
  person.Shot("one-dragged");
}

void FindPicturesAgain(Person& person) {
  ExpectPictures(person, 3);
  person.Shot("the-pictures-again");
  QPoint middle;
  person.Do([&middle] {
    const QWidget* photo = OnThePage().imgPhoto[1];
    middle = photo->mapToGlobal(QPoint(photo->width() / 3, photo->height() / 2));
    OnThePage().MouseTracker.MoveTo(middle.x(), middle.y());
    OnThePage().MouseTracker.Click(1);
  });
  person.Expect(QStringLiteral("a handle where the program's own pointer has clicked"), [middle] {
    return OnThePage().MouseTracker.X() == middle.x() && OnThePage().imgController[1]->isVisible();
  });
  person.DoubleClick("imgController(1)");
  ExpectPictures(person, 2);
}
