#include "pictures/AddPicture.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QtGui/QPainter>

#include "pictures/PictureFile.h"
#include "pictures/PictureSlots.h"
#include "pictures/frmAddPicture.h"
#include "pictures/modPictures.h"
#include "platform/Colors.h"
#include "platform/Failure.h"
#include "platform/MessageBox.h"
#include "platform/OpenFileDialog.h"
#include "platform/Rounding.h"
#include "state/State.h"

std::int32_t AddFrameIndex = 0;
std::int32_t AddWidth = 0;
std::int32_t AddHeight = 0;
double AddScale = 1.0;
std::string AddFile;

namespace {

constexpr double OpeningScale = 0.25;
constexpr double HiMetricPerPixel = 2540.0 / 96;
constexpr double TwipsPerPixelAcross = 15;
constexpr double TwipsPerPixelDown = 15;
constexpr int SurfaceSide = 1000;          // pixels of PicResize
constexpr int MostControlSide = 16777215;  // the toolkit's limit for a control

// Where new pictures are laid, in pixels of the journal window's client area.
constexpr std::int32_t Gap = 16;
constexpr std::int32_t FirstTop = 42;
constexpr std::int32_t WrappedTop = 40;
constexpr std::int32_t NewLeft = 400;

const char* const Filter =
    "Image files (*.GIF;*.JPG;*.BMP)|*.GIF;*.JPG;*.BMP|Windows Bitmap (*.BMP)|*.BMP|JPEG files (*.JPG)|*.JPG|"
    "GIF files (*.GIF)|*.GIF|All Files (*.*)|*.*";

const JournalEntry& OpenJournal() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}

// Those whose files have gone as well.
std::vector<const PagePicture*> PicturesOfThePage() {
  std::vector<const PagePicture*> rows;
  for (std::size_t row = 1; row < Pictures.size(); ++row) {
    const PagePicture& picture = Pictures[row];
    if (picture.PageNumber == CurrentPage && picture.Deleted != True &&
        picture.JournalFile == OpenJournal().FileName)
      rows.push_back(&picture);
  }
  return rows;
}

bool AskForPicture() {
  const auto path = platform::AskForFile({"Open", platform::FiltersFrom(Filter), 1});
  if (path) AddFile = *path;
  return path.has_value();
}

// The box is as large as the picture; it may hold a reduced copy.
void LoadPicture(frmAddPicture& dialog) {
  const QSize size = pictures::UprightSize(AddFile);
  dialog.picTemp->SetPicture(QPixmap::fromImage(pictures::LoadForPreview(AddFile)));
  dialog.picTemp->resize(size);
}

std::int32_t Rounded(double value) {
  constexpr long most = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(platform::RoundHalfEven(value), most));
}

std::int32_t InHiMetric(int pixels) {
  return Rounded(pixels * HiMetricPerPixel);
}

// The figure for 100% takes hundredths of a millimetre for twips, which makes it 1.764 of the picture's
// pixels; and each measure goes by the other direction's twips. Both are settled, and so is rounding twice.
void MeasureAtScale(QSize picture) {
  AddWidth = Rounded(InHiMetric(picture.width()) / TwipsPerPixelDown);
  AddHeight = Rounded(InHiMetric(picture.height()) / TwipsPerPixelAcross);
  AddWidth = Rounded(AddWidth * AddScale);
  AddHeight = Rounded(AddHeight * AddScale);
}

// A painter skips pixels when it shrinks, so what gets smaller is brought to its size before.
QImage ReducedTo(QSize size, const QImage& image) {
  if (size.width() >= image.width() || size.isEmpty()) return image;
  return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// The picture without its first row and column, stretched from the pixel (1, 1) of the surface.
void PaintPicture(QPainter& painter, const frmAddPicture& dialog) {
  const QSize natural = dialog.picTemp->size();
  const QSize shown(AddWidth, AddHeight);
  if (natural.isEmpty() || shown.isEmpty()) return;
  const QSize device = (QSizeF(shown) * painter.device()->devicePixelRatioF()).toSize();
  const QImage image = ReducedTo(device, dialog.picTemp->Picture().toImage());
  const QPointF first(1.0 * image.width() / natural.width(), 1.0 * image.height() / natural.height());
  painter.setRenderHint(QPainter::SmoothPixmapTransform, device.width() > image.width());
  painter.drawImage(QRectF(QPointF(1, 1), shown), image, QRectF(first, image.size()));
}

// Keeps what is drawn on it; of a larger picture only the part on it shows.
void DrawOnSurface(frmAddPicture& dialog) {
  const double ratio = dialog.devicePixelRatioF();
  QPixmap surface((QSizeF(SurfaceSide, SurfaceSide) * ratio).toSize());
  surface.setDevicePixelRatio(ratio);
  const std::uint32_t paper = dialog.PicResize->BackColor();
  surface.fill(platform::ToColor(paper));
  QPainter painter(&surface);
  PaintPicture(painter, dialog);
  painter.end();
  dialog.PicResize->SetPicture(surface);
}

void ShowFrame(frmAddPicture& dialog) {
  dialog.imgFrameSet->hide();
  if (AddFrameIndex < 1) return dialog.imgFrameSet->SetPicture({});
  const QSize size = dialog.picResize2->size();
  // The control stretches what is larger than the surface.
  const QSize loaded = size.boundedTo({SurfaceSide, SurfaceSide});
  dialog.imgFrameSet->SetPicture(
      pictures::LoadScaled(dialog.FrameFile(AddFrameIndex), loaded, dialog.devicePixelRatioF()));
  dialog.imgFrameSet->resize(size);
  dialog.imgFrameSet->show();
}

// Format "###": nothing at all for what rounds to none.
std::string ScaleText() {
  const long percent = std::lround(AddScale * 100);
  return "Scale: " + (percent == 0 ? std::string() : std::to_string(percent)) + "%";
}

// Below the pictures of the page, one under the other by their heights alone, wherever they were dragged to;
// from the top again where the window ends.
std::int32_t NextTop() {
  std::int64_t top = 0;
  for (const PagePicture* picture : PicturesOfThePage()) {
    top += std::int64_t{picture->PictureHeight} + Gap;
    if (PageClientHeight() < top) top = WrappedTop;
  }
  return top == 0 ? FirstTop : static_cast<std::int32_t>(top);
}

void FillRow(PagePicture& row, std::int32_t top) {
  const auto& dialog = look::The<frmAddPicture>();
  row.JournalName = OpenJournal().Name;
  row.JournalFile = OpenJournal().FileName;
  row.PageNumber = CurrentPage;
  row.PictureFile = AddFile;
  row.PictureWidth = AddWidth;
  row.PictureHeight = AddHeight;
  AddFrameIndex = std::max(0, dialog.List1->currentRow());
  row.FrameIndex = AddFrameIndex;
  if (AddFrameIndex != 0) row.FrameFile = dialog.FrameFile(AddFrameIndex);
  row.Top = top;
  row.Left = NewLeft;
}

void MakeRow() {
  const std::int32_t top = NextTop();
  ++PictureCount;
  Pictures.resize(static_cast<std::size_t>(PictureCount) + 1);
  FillRow(Pictures.back(), top);
}

}  // namespace

void StartAddPicture() {
  if (PicturesOfThePage().size() >= PictureSlots::Count) {
    platform::ShowMessage("Maximum pictures for this page.");
    return;
  }
  if (!AskForPicture()) return;
  auto& dialog = look::The<frmAddPicture>();
  for (look::PictureBox* box : {dialog.PicResize, dialog.picResize2, dialog.picTemp})
    box->SetBackColor(OpenJournal().PaperColor);
  try {
    LoadPicture(dialog);
  } catch (const platform::Failure& failure) {
    return platform::ReportFailure({}, failure);
  }
  AddScale = OpeningScale;
  dialog.Open();  // shows the preview as well, with no frame
}

void ShowScaledPreview() {
  auto& dialog = look::The<frmAddPicture>();
  MeasureAtScale(dialog.picTemp->size());
  DrawOnSurface(dialog);
  dialog.picResize2->SetPicture(dialog.PicResize->Picture());
  dialog.picResize2->resize(std::min(AddWidth, MostControlSide), std::min(AddHeight, MostControlSide));
  dialog.lblScale->setText(QString::fromStdString(ScaleText()));
  ShowFrame(dialog);  // the last step, since it can fail
}

void AddPictureToPage() {
  try {
    pictures::LoadForPreview(AddFile);  // it may have gone or changed while the dialog was open
  } catch (const platform::Failure& failure) {
    return platform::ReportFailure({}, failure);
  }
  MakeRow();
  SavePictureStore();
  ShowPagePicturesOrTell();
}
