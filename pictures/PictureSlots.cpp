#include "pictures/PictureSlots.h"

#include <algorithm>
#include <chrono>

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>

#include "look/PictureBox.h"
#include "look/Spoken.h"
#include "pictures/DragPlace.h"
#include "pictures/PageRows.h"
#include "pictures/PictureKeys.h"
#include "pictures/StretchedImage.h"
#include "pictures/modPictures.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "state/State.h"

// Must stand outside of any namespace: the linker drops a library's resources unless something asks for them.
static void LinkResources() {
  Q_INIT_RESOURCE(pictures);
}

namespace {

constexpr int FrameLeft = 1;
constexpr std::chrono::milliseconds Lingering(500);

QPointer<PictureSlots> theSlots;

QString FileNameOf(const std::string& path) {
  return QFile::decodeName(path.c_str()).section(u'/', -1);
}

QString PlaceInWords(const QWidget& box) {
  return QStringLiteral("%1 pixels from the left, %2 from the top").arg(box.x()).arg(box.y());
}

// "Picture 1: lake.jpg, frame Lace"
QString Spoken(std::size_t slot, const PagePicture& picture) {
  const QString name =
      QStringLiteral("Picture %1: %2").arg(QString::number(slot + 1), FileNameOf(picture.PictureFile));
  if (picture.FrameIndex < 1) return name;
  return name + QStringLiteral(", frame ") + FileNameOf(picture.FrameFile).section(u'.', 0, -2);
}

QImage HandleBar(double devicePixelRatio) {
  return QImage(devicePixelRatio > 1 ? QStringLiteral(":/pictures/handle@2x.png")
                                     : QStringLiteral(":/pictures/handle.png"));
}

}  // namespace

PictureSlots::PictureSlots(QWidget* page) : QObject(page), page_(page) {
  theSlots = this;
  LinkResources();
  for (std::size_t slot = 0; slot < Count; ++slot) MakeSlot(slot, page);
  lingers_.setSingleShot(true);
  lingers_.setInterval(Lingering);
  connect(&lingers_, &QTimer::timeout, this, &PictureSlots::PrepareNeighbours);
}

PictureSlots::~PictureSlots() = default;

void PictureSlots::MakeSlot(std::size_t slot, QWidget* page) {
  constexpr int left[Count] = {100, 320, 160, 340, 80, 240, 300};
  constexpr int top[Count] = {80, 100, 220, 280, 380, 420, 460};
  auto* box = new look::PictureBox(page);
  look::SpeakAs(*box, QAccessible::Graphic);
  box->setObjectName(QStringLiteral("picDisplayPics(%1)").arg(slot));
  box->setAccessibleName(QStringLiteral("Picture %1").arg(slot + 1));
  box->setGeometry(left[slot], top[slot], 202, 163);
  box->hide();
  picDisplayPics[slot] = box;
  imgPhoto[slot] = MakeImage(slot, "imgPhoto", "Photograph");
  imgFrame[slot] = MakeImage(slot, "imgFrame", "Frame");
  imgFrame[slot]->move(FrameLeft, 0);
  imgController[slot] = MakeImage(slot, "imgController", "Handle");
  imgController[slot]->setGeometry(0, pictures::HandleTop, box->width(), pictures::HandleHeight);
  imgController[slot]->SetPicture(HandleBar(page->devicePixelRatioF()));
  imgController[slot]->setCursor(Qt::SizeAllCursor);
  imgController[slot]->hide();
  ConnectSlot(slot);
}

StretchedImage* PictureSlots::MakeImage(std::size_t slot, const char* array, const char* role) {
  auto* image = new StretchedImage(picDisplayPics[slot]);
  image->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(slot));
  image->setAccessibleName(QStringLiteral("%1 of picture %2").arg(QLatin1String(role)).arg(slot + 1));
  image->resize(picDisplayPics[slot]->size());
  connect(image, &StretchedImage::Wheel, this, &PictureSlots::WheelTurned);
  return image;
}

void PictureSlots::ConnectSlot(std::size_t slot) {
  for (const StretchedImage* image : {imgPhoto[slot], imgFrame[slot]})
    connect(image, &StretchedImage::Click, this, [this, slot] {
      TakeKeysAlong(slot);
      imgPhoto_Click(slot);
    });
  const StretchedImage* handle = imgController[slot];
  connect(handle, &StretchedImage::MouseDown, this, [this, slot] { imgController_MouseDown(slot); });
  connect(handle, &StretchedImage::MouseMove, this, [this, slot] { imgController_MouseMove(slot); });
  connect(handle, &StretchedImage::MouseUp, this, &PictureSlots::imgController_MouseUp);
  connect(handle, &StretchedImage::DblClick, this, [this, slot] { imgController_DblClick(slot); });
  ListenToKeys(slot);
}

// What the mouse does with the handle.
void PictureSlots::ListenToKeys(std::size_t slot) {
  auto* keys = new PictureKeys(picDisplayPics[slot]);
  connect(keys, &PictureKeys::Chosen, this, [this, slot] { imgPhoto_Click(slot); });
  connect(keys, &PictureKeys::Dropped, this, &PictureSlots::HideControllers);
  connect(keys, &PictureKeys::Moved, this, [this, slot](QPoint pixels) {
    MoveTo(slot, PlaceOf(PictureRow(RowOf(slot))) + pixels);
    look::Announce(PlaceInWords(*picDisplayPics[slot]));
  });
  connect(keys, &PictureKeys::Put, this, &PictureSlots::imgController_MouseUp);
  connect(keys, &PictureKeys::Removed, this, [this, slot] {
    Remove(slot);
    imgController_MouseUp();
    look::Announce(QStringLiteral("The photograph is off the page."));
  });
  connect(keys, &PictureKeys::Left, this, &PictureSlots::Left);
}

// They are where the handle shows; a click beside the text that has them leaves them there.
void PictureSlots::TakeKeysAlong(std::size_t slot) {
  if (std::any_of(picDisplayPics.begin(), picDisplayPics.end(), [](auto* box) { return box->hasFocus(); }))
    picDisplayPics[slot]->setFocus(Qt::MouseFocusReason);
}

std::vector<QWidget*> PictureSlots::Stops() const {
  std::vector<QWidget*> stops;
  for (look::PictureBox* box : picDisplayPics)
    if (box->isVisible()) stops.push_back(box);
  return stops;
}

// The handle's visibility is left alone: one that shows goes over to whatever picture comes into its slot.
void PictureSlots::Show(std::size_t slot, std::int32_t row) {
  PagePicture& picture = PictureRow(row);
  const QSize size = SizeOf(picture);
  imgPhoto[slot]->SetPicture(ready_.Get({picture.PictureFile, size, page_->devicePixelRatioF()}));
  imgPhoto[slot]->resize(size);
  rows_[slot] = row;
  picDisplayPics[slot]->resize(size);
  imgController[slot]->resize(size.width(), pictures::HandleHeight);
  picDisplayPics[slot]->move(PlaceOf(picture));
  imgFrame[slot]->hide();
  picDisplayPics[slot]->show();
  ShowFrame(slot, picture);
}

void PictureSlots::ShowFrame(std::size_t slot, PagePicture& picture) {
  if (!platform::FileExists(picture.FrameFile)) {
    picture.FrameFile.clear();
    picture.FrameIndex = 0;
  }
  picDisplayPics[slot]->setAccessibleName(Spoken(slot, picture));
  picDisplayPics[slot]->setAccessibleDescription(PlaceInWords(*picDisplayPics[slot]));
  if (picture.FrameIndex < 1) return imgFrame[slot]->SetPicture({});
  const QSize size = SizeOf(picture);
  imgFrame[slot]->SetPicture(ready_.Get({picture.FrameFile, size, page_->devicePixelRatioF()}));
  imgFrame[slot]->resize(size);
  imgFrame[slot]->show();
}

void PictureSlots::ForgetImagesFrom(std::size_t slot) {
  for (; slot < Count; ++slot)
    for (StretchedImage* image : {imgPhoto[slot], imgFrame[slot]}) image->SetPicture({});
}

// Hidden, a picture would leave the keyboard to whatever comes next in the window, which may not even be in
// front, and not to the text.
void PictureSlots::Hide() {
  const QWidget* const keys = page_->window()->focusWidget();
  if (std::find(picDisplayPics.begin(), picDisplayPics.end(), keys) != picDisplayPics.end()) Q_EMIT Left();
  for (look::PictureBox* box : picDisplayPics) box->hide();
}

void PictureSlots::SetPaper(std::uint32_t color) {
  for (look::PictureBox* box : picDisplayPics) box->SetBackColor(color);
}

void PictureSlots::HideControllers() {
  for (StretchedImage* handle : imgController)
    if (!handle->isHidden()) handle->hide();
}

// Selecting. The handle is the only way to get at a picture, and at most one shows.
void PictureSlots::imgPhoto_Click(std::size_t slot) {
  for (std::size_t other = 0; other < Count; ++other)
    if (!imgController[other]->isHidden() && other != slot) imgController[other]->hide();
  imgController[slot]->show();
}

void PictureSlots::imgController_MouseDown(std::size_t slot) {
  dragged_ = slot;
}

// Wherever the handle was gripped. There is no limit to where it may go.
void PictureSlots::imgController_MouseMove(std::size_t slot) {
  if (!dragged_) return;
  const QWidget& window = *page_->window();
  MoveTo(slot, pictures::DragPlace({MouseTracker.X(), MouseTracker.Y()}, window.frameGeometry(),
                                   window.geometry()));
}

void PictureSlots::MoveTo(std::size_t slot, QPoint place) {
  PagePicture& picture = PictureRow(RowOf(slot));
  picture.Left = place.x();
  picture.Top = place.y();
  picDisplayPics[slot]->move(PlaceOf(picture));
  picDisplayPics[slot]->setAccessibleDescription(PlaceInWords(*picDisplayPics[slot]));
}

void PictureSlots::imgController_MouseUp() {
  dragged_.reset();
  SavePictureStore();
}

// The button-up that follows saves. The handle has lost the mouse by being hidden, and the text beneath must
// not get it. Where a message stood meanwhile, the button is up already.
void PictureSlots::imgController_DblClick(std::size_t slot) {
  Remove(slot);
  if (QGuiApplication::mouseButtons() == Qt::NoButton) return imgController_MouseUp();
  page_->installEventFilter(this);
  page_->grabMouse();
}

void PictureSlots::Remove(std::size_t slot) {
  PictureRow(RowOf(slot)).Deleted = True;
  ShowPagePicturesOrTell();
}

bool PictureSlots::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::MouseButtonRelease) return false;
  page_->releaseMouse();
  page_->removeEventFilter(this);
  imgController_MouseUp();
  return true;
}

std::vector<pictures::WantedPicture> PictureSlots::WantedBy(const std::vector<std::int32_t>& rows) const {
  std::vector<pictures::WantedPicture> wanted;
  const double ratio = page_->devicePixelRatioF();
  for (const std::int32_t row : rows) {
    const PagePicture& picture = PictureRow(row);
    wanted.push_back({picture.PictureFile, SizeOf(picture), ratio});
    if (picture.FrameIndex >= 1) wanted.push_back({picture.FrameFile, SizeOf(picture), ratio});
  }
  return wanted;
}

// Deals the rows out to the slots; returns the first failure. A row that cannot be shown leaves no gap.
std::optional<platform::Failure> PictureSlots::DealOut() {
  const std::vector<std::int32_t>& rows = found_ = PictureRowsOf(CurrentPage);
  ready_.Visit(WantedBy({rows.begin(), rows.size() < Count ? rows.end() : rows.begin() + Count}));
  lingers_.start();
  std::optional<platform::Failure> failure;
  std::size_t next = 0;
  for (const std::int32_t row : rows) {
    if (next == Count) return platform::Failure(platform::FailureKind::SubscriptOutOfRange);
    try {
      Show(next, row);
    } catch (const platform::Failure& problem) {
      if (!failure) failure = problem;
    }
    if (!picDisplayPics[next]->isHidden()) ++next;
  }
  ForgetImagesFrom(next);
  return failure;
}

void PictureSlots::PrepareNeighbours() {
  std::vector<std::int32_t> rows = PictureRowsOf(CurrentPage + 1);
  for (const std::int32_t row : PictureRowsOf(CurrentPage - 1)) rows.push_back(row);
  ready_.Prepare(WantedBy(rows));
}

void PictureSlots::Forget() {
  lingers_.stop();
  ready_.Forget();
  Hide();
  ForgetImagesFrom(0);
}

void ShowPagePictures() {
  theSlots->Hide();
  if (const auto failure = theSlots->DealOut()) throw platform::Failure(*failure);
}

void ShowPagePicturesOrTell() {
  try {
    ShowPagePictures();
  } catch (const platform::Failure& failure) {
    platform::ShowMessage(failure.what());
  }
}

const std::vector<std::int32_t>& PictureRowsOnShow() {
  return theSlots->Found();
}

void HidePagePictures() {
  theSlots->Hide();
}

void ForgetPagePictures() {
  theSlots->Forget();
}

int PageClientHeight() {
  return theSlots->PageHeight();
}
