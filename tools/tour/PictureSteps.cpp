#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include "editor/PageFace.h"
#include "editor/frmJournal.h"
#include "look/PictureBox.h"
#include "pictures/PictureSlots.h"
#include "pictures/StretchedImage.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "state/State.h"
#include "store/PictureStore.h"
#include "tools/tour/Steps.h"

namespace {

PictureSlots& OnThePage() {
  return *Book().face->pictures;
}

void Add(Person& person, const char* photograph, int frame) {
  person.Open("btnInsertPicture", "OpenFileDialog");
  person.Do([&] {
    QApplication::activeModalWidget()
        ->findChild<QLineEdit*>(u"fileNameEdit"_qs)
        ->setText(QLatin1String(photograph));
  });
  person.Enter({}, "frmAddPicture");
  person.Click(u"List1"_qs, frame);
  person.Click(u"cmdResizeFactorDN"_qs);
  person.Shot("a-frame-for-it");
  person.Open("cmdOK", "frmJournal");
}

// The rows that the file keeps, blank ones left out.
auto PicturesKept() {
  const auto rows = store::DecodePictureStore(platform::ReadFile(platform::PathOf("tqpics.bin"))).rows;
  return std::count_if(rows.begin(), rows.end(), [](const auto& row) { return !row.PictureFile.empty(); });
}

auto PicturesShown() {
  const auto& boxes = OnThePage().picDisplayPics;
  return std::count_if(boxes.begin(), boxes.end(), [](const auto* box) { return box->isVisible(); });
}

void ExpectPictures(Person& person, int count) {
  person.Expect(u"%1 pictures on the page and in the file"_qs.arg(count),
                [count] { return PicturesKept() == count && PicturesShown() == count; });
}

}  // namespace

void LayPictures(Person& person) {
  QFile::link(QStringLiteral(ASSETS "/frames"), QFile::decodeName(platform::PathOf("frames").c_str()));
  Add(person, ASSETS "/year/lake.jpg", 1);
  Add(person, ASSETS "/year/meadow.jpg", 6);
  Add(person, ASSETS "/year/lake.jpg", 10);
  ExpectPictures(person, 3);
  person.Click(u"imgFrame(0)"_qs);
  const QPoint end = person.Drag(u"imgController(0)"_qs, {-330, 330});
  person.Expect(u"the picture where it was dropped"_qs, [end] {
    const QPoint place = OnThePage().picDisplayPics[0]->pos();
    return place == end - Book().frameGeometry().topLeft() - QPoint(0, 32) &&
           place == QPoint(Pictures[1].Left, Pictures[1].Top);
  });
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
  person.Expect(u"a handle where the program's own pointer has clicked"_qs, [middle] {
    return OnThePage().MouseTracker.X() == middle.x() && OnThePage().imgController[1]->isVisible();
  });
  person.DoubleClick(u"imgController(1)"_qs);
  ExpectPictures(person, 2);
}
