#include "pictures/frmAddPicture.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

#include <QtCore/QFile>
#include <QtGui/QPainter>

#include "look/AiryRows.h"
#include "look/Growth.h"
#include "look/Shortening.h"
#include "look/Spoken.h"
#include "pictures/FrameThumbnails.h"
#include "pictures/NewRow.h"
#include "pictures/PictureSlots.h"
#include "pictures/PictureToAdd.h"
#include "pictures/decoding/PictureFile.h"
#include "pictures/modPictures.h"
#include "platform/Failure.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/OpenFileDialog.h"
#include "platform/dialogs/ReportFailure.h"
#include "platform/files/FileList.h"
#include "platform/files/Files.h"
#include "state/State.h"

namespace {

constexpr int Twips = 15;      // this window is designed in pixels
constexpr int ButtonEdge = 4;  // pixels that a caption leaves free
constexpr double ScaleStep = 0.01;
constexpr int ExtensionLength = 4;  // ".gif"
constexpr double OpeningScale = 0.25;
constexpr QSize PreviewRoom(500, 456);
constexpr int FieldEdge = 5;  // pixels of the design, of paper beside it
constexpr int Margin = 9;     // from the field to the window's edge
// A picture that takes longer to decode is awaited by the open dialog; one that does not comes with it.
constexpr std::chrono::milliseconds MostWait{60};
constexpr int LargestFrame = 1000;         // pixels to decode a frame in; the control stretches it beyond
constexpr int MostControlSide = 16777215;  // the toolkit's limit for a control

const char* const Filter =
    "Image files (*.GIF;*.JPG;*.BMP)|*.GIF;*.JPG;*.BMP|Windows Bitmap (*.BMP)|*.BMP|JPEG files (*.JPG)|*.JPG|"
    "GIF files (*.GIF)|*.GIF|All Files (*.*)|*.*";

std::string FramesFolder() {
  return platform::PathOf("frames");
}

std::optional<std::string> AskForPicture() {
  return platform::AskForFile({"Open", platform::FiltersFrom(Filter), 1});
}

void TellFull() {
  platform::ShowMessage("Maximum pictures for this page.");
}

void TellBrokenOff() {
  platform::ShowMessage(
      AddFile +
      "\n\nThis picture is not whole: its file ends too soon, as when its copying was broken off. It "
      "shows as far as it goes. Copy it once more from where it came, if you can.");
}

}  // namespace

frmAddPicture::frmAddPicture()
    : Form(Kind::Dialog, QStringLiteral("frmAddPicture"), QStringLiteral("Add Picture"), 676 * Twips,
           546 * Twips) {
  PlaceControls();
  PlaceScaleButtons();
  EvenScaleRow();
  PlacePreview();
  LowerToFit(*List1);
  Label1->setBuddy(List1);
  look::SpeakCurrentEntry(*List1);
  List1->addItem(QStringLiteral("No Frame!"));
  cmdOK->setDefault(true);
  List1->setFocus();

  ConnectScaleButtons();
  connect(List1, &QListWidget::currentRowChanged, this, &frmAddPicture::List1_Click);
  connect(cmdOK, &QPushButton::clicked, this, &frmAddPicture::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmAddPicture::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

frmAddPicture::~frmAddPicture() = default;

void frmAddPicture::PlaceControls() {
  const auto button = [this](const char* name, const QString& caption, int left, int width) {
    return Place(new QPushButton(caption, this), name, left * Twips, 8 * Twips, width * Twips, 30 * Twips);
  };
  cmdHelp = button("cmdHelp", QStringLiteral("Help"), 8, 96);
  cmdOK = button("cmdOK", QStringLiteral("&Insert to Journal!"), 112, 160);
  cmdCancel = button("cmdCancel", QStringLiteral("&Cancel"), 280, 96);
  // clang-format off
  Label1 = Place(new QLabel(QStringLiteral("Select Frame:"), this), "Label1", 8 * Twips, 46 * Twips, 150 * Twips, 28 * Twips);
  List1  = Place(new QListWidget(this), "List1", 8 * Twips, 82 * Twips, 150 * Twips, 456 * Twips, QStringLiteral("Select Frame:"));
  File1  = Place(new QListWidget(this), "File1", 8 * Twips, 82 * Twips, 150 * Twips, 100 * Twips, QStringLiteral("the frame files"));
  // clang-format on
  look::GiveRowsAir(*List1);
  thumbnails_ = std::make_unique<FrameThumbnails>(*List1);
  File1->hide();
}

void frmAddPicture::PlaceScaleButtons() {
  const auto button = [this](const char* name, const QString& caption, int left, int width) {
    return Place(new QPushButton(caption, this), name, left * Twips, 46 * Twips, width * Twips, 28 * Twips);
  };
  cmdResizeFactorDN = button("cmdResizeFactorDN", QStringLiteral("- Smaller"), 168, 74);
  lblScale = Place(new QLabel(QStringLiteral("Scale: 100%"), this), "lblScale", 244 * Twips, 46 * Twips,
                   82 * Twips, 28 * Twips);
  lblScale->setAlignment(Qt::AlignCenter);
  cmdResizeFactorUP = button("cmdResizeFactorUP", QStringLiteral("+ Larger"), 328, 74);
  cmdResizeFactor10 = button("cmdResizeFactor10", QStringLiteral("10%"), 406, 42);
  cmdResizeFactor25 = button("cmdResizeFactor25", QStringLiteral("25%"), 450, 42);
  cmdResizeFactor50 = button("cmdResizeFactor50", QStringLiteral("50%"), 494, 42);
  cmdResizeFactor75 = button("cmdResizeFactor75", QStringLiteral("75%"), 538, 42);
  cmdResizeFactor100 = button("cmdResizeFactor100", QStringLiteral("100%"), 582, 42);
  cmdResizeFactor200 = button("cmdResizeFactor200", QStringLiteral("200%"), 626, 42);
}

// One size of letters for the whole row: that in which the tightest caption fits.
void frmAddPicture::EvenScaleRow() {
  const QList<QPushButton*> buttons = {cmdResizeFactorDN,  cmdResizeFactorUP, cmdResizeFactor10,
                                       cmdResizeFactor25,  cmdResizeFactor50, cmdResizeFactor75,
                                       cmdResizeFactor100, cmdResizeFactor200};
  QFont even = look::FittingFont(font(), lblScale->text(), lblScale->width());
  for (const QPushButton* button : buttons)
    even = look::FittingFont(even, button->text(), button->width() - 2 * look::Grown(ButtonEdge));
  lblScale->setFont(even);
  for (QPushButton* button : buttons) button->setFont(even);
}

// The preview takes the size of the picture and is cut at the dialog's edge.
void frmAddPicture::PlacePreview() {
  const auto box = [this](const char* name, int width, int height, const QString& role) {
    return Place(new look::PictureBox(this), name, 168 * Twips, 82 * Twips, width * Twips, height * Twips,
                 role);
  };
  picResize2 = box("picResize2", PreviewRoom.width(), PreviewRoom.height(), QStringLiteral("Preview"));
  imgFrameSet = Place(new StretchedImage(picResize2), "imgFrameSet", 0, 0, PreviewRoom.width() * Twips,
                      PreviewRoom.height() * Twips, QStringLiteral("Frame of the preview"));
  imgFrameSet->hide();
  picTemp = box("picTemp", 0, 0, QStringLiteral("the chosen picture"));
  PicResize = box("PicResize", 1000, 1000, QStringLiteral("the drawing surface"));
  for (look::PictureBox* hidden : {picTemp, PicResize}) hidden->hide();
}

void frmAddPicture::paintEvent(QPaintEvent* event) {
  Form::paintEvent(event);
  QPainter painter(this);
  const QRect picture = picResize2->geometry();
  PaintField(painter,
             QRect(picture.topLeft() - QPoint(1, 1) * look::Grown(FieldEdge),
                   QPoint(width(), height()) - QPoint(1, 1) * look::Grown(Margin)),
             picture);
}

void frmAddPicture::ConnectScaleButtons() {
  const std::pair<QPushButton*, double> factors[] = {
      {cmdResizeFactor10, 0.1},  {cmdResizeFactor25, 0.25}, {cmdResizeFactor50, 0.5},
      {cmdResizeFactor75, 0.75}, {cmdResizeFactor100, 1.0}, {cmdResizeFactor200, 2.0},
  };
  for (const auto& [button, factor] : factors)
    connect(button, &QPushButton::clicked, this, [this, scale = factor] { SetScale(scale); });
  connect(cmdResizeFactorUP, &QPushButton::clicked, this, [this] { SetScale(AddScale + ScaleStep); });
  connect(cmdResizeFactorDN, &QPushButton::clicked, this, &frmAddPicture::cmdResizeFactorDN_Click);
}

// With the preview in it, and no frame.
void frmAddPicture::ShowPicture() {
  Form_Activate();
  List1->setFocus();
  ShowModal();
}

void frmAddPicture::CloseBox() {
  hide();
}

void frmAddPicture::Form_Activate() {
  ReadFrames();
  {
    const QSignalBlocker noClicks(List1);
    List1->clear();
    List1->addItem(QStringLiteral("No Frame"));
    for (int i = 0; i < File1->count(); ++i) List1->addItem(File1->item(i)->text().chopped(ExtensionLength));
    List1->setCurrentRow(-1);
  }
  List1->setCurrentRow(0);
  std::vector<std::string> frames(1);
  for (int i = 1; i <= File1->count(); ++i) frames.push_back(FrameFile(i));
  thumbnails_->Show(std::move(frames));
}

// In the order of the names' bytes, the same on every machine.
void frmAddPicture::ReadFrames() {
  File1->clear();
  try {
    for (const std::string& name : platform::ListFiles(FramesFolder(), {".gif"}))
      File1->addItem(QFile::decodeName(name.c_str()));
  } catch (const platform::Failure& failure) {
    platform::ShowMessage(
        failure.what() + std::string("\n\nThe frames for pictures lie in this folder. Put it back beside the "
                                     "program; until then, pictures have no frame."));
  }
}

std::string frmAddPicture::FrameFile(std::int32_t index) const {
  const QListWidgetItem* entry = File1->item(index - 1);
  return FramesFolder() + "/" + (entry ? QFile::encodeName(entry->text()).toStdString() : std::string());
}

void frmAddPicture::List1_Click(int index) {
  if (index < 0) return;
  AddFrameIndex = index;
  ShowPreviewOrDropFrame();
}

// From 25% it works 24 times: the value is then just under its least.
void frmAddPicture::cmdResizeFactorDN_Click() {
  if (AddScale > ScaleStep) SetScale(AddScale - ScaleStep);
}

void frmAddPicture::SetScale(double scale) {
  AddScale = scale;
  ShowPreviewOrDropFrame();
  look::Announce(lblScale->text());
}

// A frame that has gone since the list was read, or is no picture, is told once and no longer chosen.
void frmAddPicture::ShowPreviewOrDropFrame() {
  try {
    ShowScaledPreview();
  } catch (const platform::Failure& failure) {
    platform::ReportFailure({}, failure);
    AddFrameIndex = 0;
    List1->setCurrentRow(0);
  }
}

void frmAddPicture::InsertPicture() {
  if (PageIsFull()) return TellFull();
  if (const auto path = AskForPicture()) Open(*path);
}

void frmAddPicture::InsertPicture(const std::string& path) {
  PageIsFull() ? TellFull() : Open(path);
}

void frmAddPicture::Open(const std::string& path) {
  AddFile = path;
  for (look::PictureBox* box : {PicResize, picResize2, picTemp})
    box->SetBackColor(Journals.at(static_cast<std::size_t>(CurrentJournal)).PaperColor);
  AddScale = OpeningScale;
  ForgetPicture();
  decoder_.Decode(path);
  if (!decoder_.IsReadyWithin(MostWait))
    TakeSmallCopy();
  else if (!TakePicture())
    return;
  cmdOK->setEnabled(!decoder_.IsAwaited());
  ShowPicture();
  decoder_.Drop();
}

void frmAddPicture::ForgetPicture() {
  picTemp->SetPicture({});
  picTemp->resize(0, 0);
}

// The box is as large as the picture; it may hold a reduced copy.
void frmAddPicture::HoldPicture(const pictures::Preview& preview) {
  file_ = preview.shown.file;
  picTemp->SetPicture(QPixmap::fromImage(preview.shown.image));
  picTemp->resize(preview.natural);
}

// False where there is none, which is told.
bool frmAddPicture::TakePicture() {
  try {
    const pictures::Preview preview = decoder_.Take();
    HoldPicture(preview);
    if (!preview.isWhole) TellBrokenOff();
    return true;
  } catch (const platform::Failure& failure) {
    platform::ReportFailure({}, failure);
    return false;
  }
}

// What a camera has stored stands in until the picture is there.
void frmAddPicture::TakeSmallCopy() {
  if (const auto copy = decoder_.TakeSmallCopy()) HoldPicture(*copy);
}

// The dialog stands open already.
void frmAddPicture::TakeLatePicture() {
  if (!decoder_.IsReadyWithin({}))
    TakeSmallCopy();
  else if (!TakePicture())
    return hide();
  cmdOK->setEnabled(!decoder_.IsAwaited());
  ShowPreviewOrDropFrame();
}

void frmAddPicture::SetFrame(std::int16_t index) {
  AddFrameIndex = index;
  ShowScaledPreview();
}

void frmAddPicture::ShowScaledPreview() {
  if (decoder_.IsAwaited() && picTemp->Picture().isNull()) return ShowThatItComes();
  MeasureAtScale(picTemp->size());
  PicResize->SetPicture(
      DrawPreview(picTemp->Picture(), picTemp->size(), PicResize->BackColor(), devicePixelRatioF()));
  picResize2->SetPicture(PicResize->Picture());
  picResize2->resize(std::min(AddWidth, MostControlSide), std::min(AddHeight, MostControlSide));
  lblScale->setText(QString::fromStdString(ScaleText()));
  update();     // the shadow
  ShowFrame();  // the last step, since it can fail
}

void frmAddPicture::ShowThatItComes() {
  lblScale->setText(QString::fromStdString(ScaleText()));
  imgFrameSet->hide();
  const QSize room = look::Grown(PreviewRoom);
  picResize2->resize(room);
  picResize2->SetPicture(DrawWaiting(room, picResize2->BackColor(), devicePixelRatioF()));
}

void frmAddPicture::ShowFrame() {
  imgFrameSet->hide();
  if (AddFrameIndex < 1) return imgFrameSet->SetPicture({});
  const QSize size = picResize2->size();
  const QSize decoded = size.boundedTo({LargestFrame, LargestFrame});
  imgFrameSet->SetPicture(pictures::Decode({FrameFile(AddFrameIndex), decoded, devicePixelRatioF()}).image);
  imgFrameSet->resize(size);
  imgFrameSet->show();
}

void frmAddPicture::cmdOK_Click() {
  hide();
  AddPictureToPage();
}

// The file may have gone or changed while the dialog was open.
void frmAddPicture::AddPictureToPage() {
  try {
    if (!pictures::IsStill(AddFile, file_)) pictures::LoadForPreview(AddFile);
  } catch (const platform::Failure& failure) {
    return platform::ReportFailure({}, failure);
  }
  AddFrameIndex = std::max(0, List1->currentRow());
  MakeRow(AddFrameIndex == 0 ? std::string() : FrameFile(AddFrameIndex));
  SavePictureStore();
  ShowPagePicturesOrTell();
  look::Announce(QStringLiteral("The photograph lies on the page."));
}
