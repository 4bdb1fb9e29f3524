#include "editor/frmEmoticons.h"

#include <algorithm>
#include <chrono>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include "editor/EmoticonPicture.h"
#include "editor/PageFace.h"
#include "look/Growth.h"
#include "look/Spoken.h"
#include "platform/Colors.h"
#include "platform/Failure.h"
#include "platform/desktop/Keystroke.h"
#include "platform/desktop/TaskBar.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/FileList.h"
#include "richtext/box/RichTextBox.h"

namespace {

constexpr int Columns = 10;
constexpr int ColumnLeft[Columns] = {195, 690, 1185, 1680, 2175, 2670, 3165, 3660, 4155, 4650};
constexpr int RowTop[] = {270, 780, 1290, 1785, 2265, 2760};  // uneven, and kept so
constexpr int ScreenSize = 60;
constexpr std::chrono::milliseconds UntilItIsSaid{1500};
constexpr QSize LargestOnAButton{28, 26};  // pixels of the design; anything larger is shown smaller

// The toolkit enlarges no icon.
QPixmap OnAButton(const QImage& picture, double scale) {
  if (look::Growth() == 1 || picture.isNull()) return QPixmap::fromImage(picture);
  const QSize size = look::Grown(picture.deviceIndependentSize().toSize());
  QImage grown = picture.scaled(size * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  grown.setDevicePixelRatio(scale);
  return QPixmap::fromImage(grown);
}

// A transparent picture comes out on the colour of the page.
QImage Flattened(const QImage& picture, const QColor& paper) {
  QImage flat(picture.size(), QImage::Format_RGB32);
  flat.setDevicePixelRatio(picture.devicePixelRatio());
  flat.fill(paper);
  QPainter(&flat).drawImage(0, 0, picture);
  return flat;
}

void Paste(const QImage& picture) {
  richtext::RichTextBox& text = *Face().txtM;
  const QImage flat = Flattened(picture, platform::ToColor(text.BackColor()));
  QApplication::clipboard()->clear();
  QApplication::clipboard()->setImage(flat);
  text.setFocus();
  platform::SendKeyTo(text, Qt::Key_Insert, Qt::ShiftModifier);
}

// "005-hearty-laugh.gif" is "hearty laugh". A name that is a number alone stays one.
QString SpokenName(const QString& fileName) {
  static const QRegularExpression order(QStringLiteral("^\\d+[-_ ]+(?=.)"));
  QString name = fileName.section(u'.', 0, -2);
  return name.remove(order).replace(u'-', u' ').replace(u'_', u' ');
}

QString TwoDigits(int number) {
  return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString PageCaption(int page, int pages) {
  return QStringLiteral("Page %1/%2").arg(TwoDigits(page), TwoDigits(pages));
}

}  // namespace

frmEmoticons::frmEmoticons()
    : Form(Kind::Dialog, QStringLiteral("frmEmoticons"), QStringLiteral("Emoticons"), 5310, 3960),
      file1_(platform::ListFiles(EmoticonFolder(), {".jpg", ".gif"})) {
  LayOut();
  cmdPage->setVisible(file1_.size() > ScreenSize);
  ShowScreen(0);
  platform::KeepOffTaskBar(*this);
}

void frmEmoticons::LayOut() {
  for (int i = 0; i < ScreenSize; ++i) {
    const QByteArray name = QStringLiteral("cmdEmoticons(%1)").arg(i).toLatin1();
    auto* button = Place(new QPushButton(this), name, ColumnLeft[i % Columns], RowTop[i / Columns], 480, 450);
    button->setFlat(true);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, button] { cmdEmoticons_Click(*button); });
    cmdEmoticons[static_cast<std::size_t>(i)] = button;
  }
  // clang-format off
  cmdHelp   = Place(new QPushButton(QStringLiteral("Help"), this), "cmdHelp", 195, 3420, 930, 375);
  cmdPage   = Place(new QPushButton(PageCaption(1, CountPages()), this), "cmdPage", 1800, 3435, 1545, 360);
  cmdCancel = Place(new QPushButton(QStringLiteral("&Cancel"), this), "cmdCancel", 4050, 3420, 1080, 375);
  // clang-format on
  for (QPushButton* button : {cmdHelp, cmdPage, cmdCancel}) button->installEventFilter(this);
  connect(cmdPage, &QPushButton::clicked, this, &frmEmoticons::cmdPage_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmEmoticons::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

// A count that fills its last screen gives one more, an empty one.
int frmEmoticons::CountPages() const {
  return static_cast<int>(file1_.size()) / ScreenSize + 1;
}

// A button without a file, and one whose file is no picture, is hidden.
void frmEmoticons::ShowScreen(int start) {
  for (int i = 0; i < ScreenSize; ++i) {
    QPushButton& button = *cmdEmoticons[static_cast<std::size_t>(i)];
    const std::size_t file = static_cast<std::size_t>(start) + static_cast<std::size_t>(i);
    button.setVisible(file < file1_.size() && LoadEmoticon(button, file1_[file]));
  }
  const auto first = std::find_if(cmdEmoticons.begin(), cmdEmoticons.end(),
                                  [](const QPushButton* button) { return !button->isHidden(); });
  StopAt(first == cmdEmoticons.end() ? nullptr : *first);
}

bool frmEmoticons::LoadEmoticon(QPushButton& button, const std::string& fileName) {
  const QImage plain = LoadEmoticonPicture(fileName, LargestOnAButton);
  const double scale = devicePixelRatioF();
  const QPixmap picture = OnAButton(AsSharpAs(scale * look::Growth(), fileName, plain), scale);
  if (picture.isNull()) return false;
  const QString name = QFile::decodeName(fileName.c_str());
  button.setIcon(picture);
  button.setIconSize(look::Grown(plain.size()));
  button.setProperty("Tag", QByteArray::fromStdString(fileName));
  button.setAccessibleName(SpokenName(name));
  button.setAccessibleDescription(name);
  button.setToolTip(QStringLiteral("<p>%1</p>").arg(name.toHtmlEscaped()));
  return true;
}

// The arrow keys go from picture to picture as the eye does, and out of the last row to the buttons below;
// from there up to the picture that was left.
bool frmEmoticons::eventFilter(QObject* watched, QEvent* event) {
  return event->type() == QEvent::KeyPress && LeadOn(watched, static_cast<QKeyEvent*>(event)->key());
}

bool frmEmoticons::LeadOn(const QObject* from, int key) {
  constexpr std::pair<int, int> steps[] = {
      {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -Columns}, {Qt::Key_Down, Columns}};
  const auto way =
      std::find_if(std::begin(steps), std::end(steps), [key](auto step) { return step.first == key; });
  if (way == std::end(steps)) return false;
  const auto place = std::find(cmdEmoticons.begin(), cmdEmoticons.end(), from) - cmdEmoticons.begin();
  if (place < ScreenSize) {
    StopAt(cmdEmoticons[static_cast<std::size_t>(place)]);
    if (!LeadAmongPictures(place, way->second) && key == Qt::Key_Down) ButtonBelow(place)->setFocus();
    return true;
  }
  if (key == Qt::Key_Up && stop_) stop_->setFocus(Qt::OtherFocusReason);
  return key == Qt::Key_Up;
}

bool frmEmoticons::LeadAmongPictures(std::ptrdiff_t from, int step) {
  for (auto to = from + step; to >= 0 && to < ScreenSize; to += step) {
    QPushButton* button = cmdEmoticons[static_cast<std::size_t>(to)];
    if (button->isHidden()) continue;
    StopAt(button);
    button->setFocus(Qt::OtherFocusReason);
    return true;
  }
  return false;
}

QPushButton* frmEmoticons::ButtonBelow(std::ptrdiff_t place) const {
  const int column = static_cast<int>(place) % Columns;
  if (column < Columns / 3) return cmdHelp;
  return column < 2 * Columns / 3 && cmdPage->isVisible() ? cmdPage : cmdCancel;
}

// All pictures are one stop of the Tab key.
void frmEmoticons::StopAt(QPushButton* button) {
  stop_ = button;
  for (QPushButton* each : cmdEmoticons)
    each->setFocusPolicy(each == button ? Qt::StrongFocus : Qt::ClickFocus);
}

// The last screen leads back to the first.
void frmEmoticons::cmdPage_Click() {
  const QString caption = cmdPage->text();  // "Page 01/03"
  int page = caption.mid(5, 2).toInt();
  if (page == caption.mid(8, 2).toInt()) page = 0;
  cmdPage->setText(PageCaption(page + 1, CountPages()));
  ShowScreen(page * ScreenSize);
  // Behind the names of all the pictures, among which Orca would pass over it.
  QTimer::singleShot(UntilItIsSaid, this, [this] { look::Announce(cmdPage->text()); });
}

// The text box's own paste puts the picture at the caret, once the picker is gone.
void frmEmoticons::cmdEmoticons_Click(const QPushButton& button) {
  hide();
  const std::string fileName = button.property("Tag").toByteArray().toStdString();
  if (const QImage picture = LoadEmoticonPicture(fileName); picture.isNull())
    platform::ShowMessage("The emoticon cannot be read any more:\n" + EmoticonFolder() + "/" + fileName);
  else
    Paste(AsSharpAs(Face().txtM->devicePixelRatioF(), fileName, picture));
  look::Discard(this);
}

void ShowEmoticonPicker() {
  try {
    look::The<frmEmoticons>();
  } catch (const platform::Failure& failure) {
    platform::ShowMessage(std::string("The emoticons cannot be shown.\n") + failure.what() +
                          "\n\nThey are the pictures in the folder \"emoticons\" beside the program.");
    return;
  }
  look::The<frmEmoticons>().ShowModal();
}
