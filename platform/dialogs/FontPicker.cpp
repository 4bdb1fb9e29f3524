#include "platform/dialogs/FontPicker.h"

#include <algorithm>
#include <cmath>

#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtGui/QRegularExpressionValidator>
#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>

#include "platform/CodePage.h"
#include "platform/Colors.h"
#include "platform/dialogs/ColorDialog.h"
#include "platform/dialogs/ColorName.h"

namespace platform {
namespace {

constexpr double LargestSize = 1638;  // points; what the pages' format can hold
constexpr double SampleSize = 12;     // of a mixed text
constexpr QSize Swatch{28, 14};       // pixels
constexpr QSize FrameAround(16, 48);  // what a window manager's frame takes
constexpr int SampleHeight = 84;
constexpr QChar ArabicPoint = u'\u066B';

// Without the maker, whom the toolkit adds in brackets where two make a font of one name: no other program
// would find the font by that.
QStringList FontNames(bool ofTheCodePage) {
  static const QRegularExpression maker(QStringLiteral(" \\[[^\\]]*\\]$"));
  QStringList names;
  for (QString name : QFontDatabase::families()) {
    if (QFontDatabase::isPrivateFamily(name)) continue;
    name.remove(maker);
    if (!ofTheCodePage || FirstForeignCharacter(name).isEmpty()) names.append(name);
  }
  names.removeDuplicates();
  return names;
}

QStringList UsualSizes() {
  QStringList sizes;
  for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72})
    sizes.append(QString::number(size));
  return sizes;
}

// In the digits of the list, whatever those of the desktop are; with its comma where it has one.
QString SizeText(double size) {
  if (!(size > 0)) return {};
  QString text = QString::number(size, 'f', QLocale::FloatingPointShortest);
  if (QLocale::system().decimalPoint() == u",") text.replace(u'.', u',');
  return text;
}

// Takes the digits and points of every script, as its keyboards type them, and makes those of the list of
// them.
class SizeValidator : public QRegularExpressionValidator {
 public:
  explicit SizeValidator(QObject* parent)
      : QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,4}([.,]\\d?)?")), parent) {}

  State validate(QString& input, int& place) const override {
    for (QChar& sign : input) {
      if (sign.isDigit()) sign = QChar(u'0' + sign.digitValue());
      if (sign == ArabicPoint) sign = u'.';
    }
    return QRegularExpressionValidator::validate(input, place);
  }
};

QLabel* LabelOf(const QString& caption, QWidget* buddy) {
  auto* label = new QLabel(caption);
  label->setBuddy(buddy);
  return label;
}

}  // namespace

FontPicker::FontPicker(const FontQuestion& question, QWidget* parent) : QDialog(parent), question_(question) {
  setObjectName(QStringLiteral("FontDialog"));
  setWindowTitle(QStringLiteral("Font"));
  MakeChoices();
  LayOut();
  NameControls();
  Stand();
  for (const ChoiceList* choice : {name, size})
    connect(choice, &ChoiceList::Changed, this, &FontPicker::ShowSample);
  for (const QCheckBox* box : {bold, italic, underline, strikethru})
    connect(box, &QCheckBox::toggled, this, &FontPicker::ShowSample);
  connect(color, &QPushButton::clicked, this, &FontPicker::ChooseColor);
  connect(buttons, &QDialogButtonBox::accepted, this, &FontPicker::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &FontPicker::reject);
  ShowSample();
}

void FontPicker::MakeChoices() {
  name = new ChoiceList(QStringLiteral("fontName"), FontNames(question_.codePageNames));
  name->SetFiltering(true);
  name->edit->setAccessibleName(QStringLiteral("Font"));
  name->list->setAccessibleName(QStringLiteral("installed fonts"));
  size = new ChoiceList(QStringLiteral("fontSize"), UsualSizes());
  size->edit->setAccessibleName(QStringLiteral("Size"));
  size->list->setAccessibleName(QStringLiteral("usual sizes"));
  size->edit->setValidator(new SizeValidator(size));
  size->setFixedWidth(std::max(90, 10 * fontMetrics().averageCharWidth()));
}

void FontPicker::LayOut() {
  auto* grid = new QGridLayout(this);
  grid->setSpacing(8);
  grid->addWidget(LabelOf(QStringLiteral("&Font:"), name->edit), 0, 0);
  grid->addWidget(LabelOf(QStringLiteral("&Size:"), size->edit), 0, 1);
  grid->addWidget(name, 1, 0);
  grid->addWidget(size, 1, 1);
  grid->addLayout(EffectsColumn(), 1, 2);
  MakeSample();
  grid->addWidget(sample, 2, 0, 1, 3);
  grid->addWidget(note, 3, 0, 1, 3);
  buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  grid->addWidget(buttons, 4, 0, 1, 3);
  grid->setColumnStretch(0, 1);
  const QFontMetrics metrics = fontMetrics();
  const QSize wanted(std::max(460, 64 * metrics.averageCharWidth()),
                     std::max(430, 28 * metrics.lineSpacing()));
  resize(wanted.boundedTo(screen()->availableSize() - FrameAround));
}

QLayout* FontPicker::EffectsColumn() {
  bold = new QCheckBox(QStringLiteral("&Bold"));
  italic = new QCheckBox(QStringLiteral("&Italic"));
  underline = new QCheckBox(QStringLiteral("&Underline"));
  strikethru = new QCheckBox(QStringLiteral("Stri&kethrough"));
  color = new QPushButton(QStringLiteral("Co&lor…"));
  color->setAutoDefault(false);
  auto* column = new QVBoxLayout;
  for (QCheckBox* box : {bold, italic, underline, strikethru}) column->addWidget(box);
  column->addSpacing(8);
  column->addWidget(color);
  column->addStretch();
  return column;
}

void FontPicker::MakeSample() {
  sample = new QLabel(QStringLiteral("AaBbYyZz"));
  sample->setAccessibleName(QStringLiteral("Sample"));
  sample->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  sample->setAlignment(Qt::AlignCenter);
  sample->setAutoFillBackground(true);
  sample->setFixedHeight(SampleHeight);
  sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // a large font is cut, and moves nothing
  note = new QLabel;
  note->setTextFormat(Qt::PlainText);
}

void FontPicker::NameControls() {
  const std::pair<QWidget*, const char*> names[] = {
      {bold, "bold"},   {italic, "italic"}, {underline, "underline"}, {strikethru, "strikethru"},
      {color, "color"}, {sample, "sample"}, {note, "note"},           {buttons, "buttons"}};
  for (const auto& [control, text] : names) control->setObjectName(QLatin1String(text));
}

// Puts the question's values into the controls.
void FontPicker::Stand() {
  const FontValues& start = question_.start;
  name->Choose(start.name);
  size->Choose(SizeText(start.size));
  bold->setChecked(start.bold);
  italic->setChecked(start.italic);
  underline->setChecked(start.underline);
  strikethru->setChecked(start.strikethru);
  chosenColor_ = start.color;
  ShowColor();
  name->edit->selectAll();
}

FontValues FontPicker::Values() const {
  return {KeepsName() ? question_.start.name : name->Entry(),
          Size(),
          bold->isChecked(),
          italic->isChecked(),
          underline->isChecked(),
          strikethru->isChecked(),
          chosenColor_};
}

bool FontPicker::KeepsName() const {
  return name->edit->text() == question_.start.name;
}

double FontPicker::Size() const {
  const double points = size->edit->text().replace(u',', u'.').toDouble();
  return std::min(std::round(points * 2) / 2, LargestSize);
}

void FontPicker::ChooseColor() {
  const DialogResult<std::uint32_t> result = AskForColor({chosenColor_});
  if (!WasChosen(result.end, "color")) return;
  chosenColor_ = result.choice;
  ShowColor();
  ShowSample();
}

void FontPicker::ShowColor() {
  const QColor chosen = ToColor(chosenColor_);
  QPixmap swatch((QSizeF(Swatch) * devicePixelRatioF()).toSize());
  swatch.fill(chosen);
  QPainter(&swatch).drawRect(swatch.rect().adjusted(0, 0, -1, -1));
  swatch.setDevicePixelRatio(devicePixelRatioF());
  color->setIcon(swatch);
  color->setIconSize(Swatch);
  color->setAccessibleDescription(ColorInWords(chosen));
}

void FontPicker::ShowSample() {
  const FontValues values = Values();
  QFont font(values.name.isEmpty() ? this->font().family() : values.name);
  font.setPointSizeF(values.size > 0 ? values.size : SampleSize);
  font.setBold(values.bold);
  font.setItalic(values.italic);
  font.setUnderline(values.underline);
  font.setStrikeOut(values.strikethru);
  sample->setFont(font);
  QPalette colors = sample->palette();
  colors.setColor(QPalette::WindowText, ToColor(values.color));
  colors.setColor(QPalette::Window, ToColor(question_.paper));
  sample->setPalette(colors);

  const bool named = !name->edit->text().isEmpty();
  const bool known = !name->Entry().isEmpty();
  const bool acceptable = known || !named || KeepsName();
  buttons->button(QDialogButtonBox::Ok)->setEnabled(acceptable);
  Tell(known || !named ? QString()
       : acceptable    ? QStringLiteral("This font is not installed here. Its name is kept.")
                       : QStringLiteral("No installed font has this name."));
}

// What stands there at first is read with the dialog.
void FontPicker::Tell(const QString& text) {
  if (text == note->text()) return;
  note->setText(text);
  if (isVisible() && !text.isEmpty() && question_.announce) question_.announce(text);
}

}  // namespace platform
