#include "richtext/html/Frames.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>

#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/html/Colors.h"
#include "richtext/html/Lengths.h"
#include "richtext/textdocument/Formats.h"

namespace richtext::html {
namespace {

constexpr double Medium = 3;  // pixels; the width of a border that tells none

constexpr QStringView Blocks[] = {u"blockquote", u"center", u"dd", u"div", u"dl", u"dt", u"h1",  u"h2", u"h3",
                                  u"h4",         u"h5",     u"h6", u"li",  u"ol", u"p",  u"pre", u"ul"};
constexpr QStringView Cells[] = {u"table", u"td", u"th", u"caption"};

std::optional<double> Pixels(QStringView word) {
  if (word == u"thin") return 1;
  if (word == u"medium") return Medium;
  if (word == u"thick") return 5;
  const std::optional<double> pixels = PixelsOf(word);
  return pixels ? std::optional(std::clamp(*pixels, 0.0, 1000.0)) : std::nullopt;
}

std::optional<BorderKind> KindOf(QStringView word) {
  constexpr struct {
    QStringView style;
    BorderKind kind;
  } Styles[] = {{u"none", BorderKind::Hidden},   {u"hidden", BorderKind::Hidden},
                {u"solid", BorderKind::Single},  {u"double", BorderKind::Double},
                {u"dotted", BorderKind::Dotted}, {u"dashed", BorderKind::Dashed},
                {u"groove", BorderKind::Single}, {u"ridge", BorderKind::Single},
                {u"inset", BorderKind::Single},  {u"outset", BorderKind::Single}};
  for (const auto& [style, kind] : Styles)
    if (word == style) return kind;
  return std::nullopt;
}

std::int32_t Twips(double pixels) {
  return static_cast<std::int32_t>(std::lround(pixels * TwipsPerPixel));
}

enum class What { All, Width, Style, Color, Padding };

// A word of a border's value may be any of the three.
void TakeWord(What what, QStringView word, ParagraphBorder& border) {
  const std::optional<double> pixels = Pixels(word);
  if (what == What::Padding) {
    border.space = Twips(pixels.value_or(0));
  } else if (pixels) {
    border.line.width = Twips(*pixels);
  } else if (const std::optional<BorderKind> kind = KindOf(word)) {
    border.line.kind = *kind;
  } else if (const std::optional<QColor> color = FirstCssColor(word)) {
    border.line.color = FromColor(*color);
  }
}

std::vector<QStringView> WordsOf(QStringView value) {
  std::vector<QStringView> words;
  for (value = value.trimmed(); !value.isEmpty() && words.size() < 8;) {
    const qsizetype length = FirstWordOf(value);
    words.push_back(value.left(length));
    value = value.mid(length).trimmed();
  }
  return words;
}

// "border", "border-left", "border-width", "border-left-width", "padding", "padding-left".
struct Property {
  What what;
  int side;  // a Side, or -1 for all of them
};
std::optional<Property> PropertyOf(const QString& name) {
  constexpr QStringView Sides[] = {u"top", u"left", u"bottom", u"right"};                 // by Side
  constexpr QStringView Parts[] = {u"border", u"width", u"style", u"color", u"padding"};  // by What
  const QStringList parts = name.split(u'-');
  if (parts.size() > 3 || (parts[0] != Parts[0] && parts[0] != Parts[4])) return std::nullopt;
  Property property{parts[0] == Parts[4] ? What::Padding : What::All, -1};
  for (const QString& part : parts.mid(1)) {
    const auto* const side = std::find(std::begin(Sides), std::end(Sides), part);
    const auto* const what = std::find(std::begin(Parts) + 1, std::begin(Parts) + 4, part);
    if (side != std::end(Sides))
      property.side = static_cast<int>(side - std::begin(Sides));
    else if (what != std::begin(Parts) + 4)
      property.what = static_cast<What>(what - std::begin(Parts));
    else
      return std::nullopt;
  }
  return property;
}

// One value for all sides, or up to four: at the top, the right, the bottom and the left.
void TakeSides(What what, const std::vector<QStringView>& words, ParagraphBorders& borders) {
  constexpr std::size_t Order[] = {0, 3, 2, 1};  // of a Side in such values
  constexpr std::size_t Given[4][4] = {{0, 0, 0, 0}, {0, 1, 0, 1}, {0, 1, 2, 1}, {0, 1, 2, 3}};
  const std::size_t count = std::min<std::size_t>(words.size(), 4);
  if (count == 0) return;
  for (const Side side : {TopSide, LeftSide, BottomSide, RightSide})
    TakeWord(what, words[Given[count - 1][Order[side]]], borders[side]);
}

void TakeDeclaration(QStringView declaration, ParagraphBorders& borders) {
  const qsizetype colon = declaration.indexOf(u':');
  if (colon < 0) return;
  const std::optional<Property> property = PropertyOf(declaration.left(colon).trimmed().toString());
  if (!property) return;
  const std::vector<QStringView> words = WordsOf(declaration.mid(colon + 1));
  const bool isWhole = property->what == What::All;
  if (property->side < 0 && !isWhole) return TakeSides(property->what, words, borders);
  for (int side = 0; side < 4; ++side) {
    if (property->side >= 0 && property->side != side) continue;
    ParagraphBorder& border = borders[static_cast<std::size_t>(side)];
    if (isWhole) border.line = {BorderKind::None, Twips(Medium), {}};
    for (const QStringView word : words) TakeWord(property->what, word, border);
  }
}

}  // namespace

ParagraphBorders BordersOfStyle(QStringView css) {
  const QString plain = css.toString().toLower().remove(QLatin1String("!important"));
  ParagraphBorders borders;
  for (ParagraphBorder& border : borders) border.line.width = Twips(Medium);
  for (const QStringView declaration : QStringView(plain).split(u';')) TakeDeclaration(declaration, borders);
  for (ParagraphBorder& border : borders)
    if (border.line.width == 0) border = {};
  return FittingBorders(borders);
}

ParagraphBorders FrameMarks::OwnOf(const Tag& tag) {
  for (const Attribute& attribute : tag.attributes) {
    if (attribute.key != u"style" || !attribute.value.contains(u"border", Qt::CaseInsensitive)) continue;
    if (const ParagraphBorders own = BordersOfStyle(attribute.value); own != ParagraphBorders()) return own;
  }
  return {};
}

void FrameMarks::Take(Tag& tag) {
  const QLatin1String mark("title");
  std::erase_if(tag.attributes, [&](const Attribute& attribute) { return attribute.key == mark; });
  const bool isCell = IsOneOf(Cells, tag.name);
  if (tag.closes || (!isCell && !IsOneOf(Blocks, tag.name))) return;
  const ParagraphBorders own = isCell ? ParagraphBorders() : OwnOf(tag);
  if (own != ParagraphBorders() && different_.size() < MaxFrames) different_.insert(own);
  const bool isFramed = different_.contains(own);
  if (isFramed) frames_.push_back(own);
  if (isFramed || isCell)
    tag.attributes.push_back({mark, QString::number(isFramed ? frames_.size() - 1 : 0)});
}

// Markup has the borders and the space within them beside its margins. The toolkit forgets these, and the
// ground, for text that stands behind a block and not within one: it has those that the frame began with.
void FramedBlocks::SetFrame(const QTextBlock& block, ParagraphFormat& format) {
  const QTextBlock::iterator letters = block.begin();
  const std::size_t number =
      (letters.atEnd() ? block.charFormat() : letters.fragment().charFormat()).toolTip().toULongLong();
  if (number == 0) return;
  const QTextBlockFormat told = block.blockFormat();
  const First& first = first_.try_emplace(number, First{told, format.ground}).first->second;
  if (!told.hasProperty(QTextFormat::BackgroundBrush)) format.ground = first.ground;
  const ParagraphBorders& borders = format.borders = frames_[number];
  const auto indent = [](double margin, double firstMargin, const ParagraphBorder& border) {
    return (margin == 0 ? Twips(firstMargin) : 0) + border.space + border.line.width;
  };
  format.leftIndent = FittingIndent(format.leftIndent +
                                    indent(told.leftMargin(), first.told.leftMargin(), borders[LeftSide]));
  format.rightIndent = FittingIndent(
      format.rightIndent + indent(told.rightMargin(), first.told.rightMargin(), borders[RightSide]));
}

}  // namespace richtext::html
