// The text box as a person uses it, shown, with real keys; and pages to put into it.
#pragma once

#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include "richtext/BoxDocument.h"
#include "richtext/RichTextBox.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"

namespace richtext {

inline CharacterFormat Font(const char* name, int halfPoints, std::optional<std::uint32_t> color = {}) {
  CharacterFormat format;
  format.fontName = name;
  format.halfPoints = halfPoints;
  format.color = color;
  return format;
}

inline CharacterFormat LoudFont() {
  CharacterFormat format = Font("No Such Font", 37, 0x0000ff);
  format.bold = format.italic = format.strikethrough = true;
  format.underline = UnderlineKind::Single;
  return format;
}

inline CharacterFormat JournalFont() {
  CharacterFormat format = Font("Courier", 17, 0x00ff0000);
  format.bold = true;
  return format;
}

inline ParagraphFormat Indented(Alignment alignment, int left, int right, int first) {
  ParagraphFormat format;
  format.alignment = alignment;
  format.leftIndent = left;
  format.rightIndent = right;
  format.firstLineIndent = first;
  return format;
}

inline const CharacterFormat Plain = Font("Arial", 20);
inline const CharacterFormat Loud = LoudFont();
inline const CharacterFormat Journal = JournalFont();

// One paragraph of runs.
inline Document Page(const std::vector<std::pair<std::u16string, CharacterFormat>>& runs) {
  Document page;
  for (const auto& [text, format] : runs) {
    page.runs.push_back({std::uint32_t(text.size()), std::uint32_t(page.formats.size())});
    page.text += text;
    page.formats.push_back(format);
  }
  page.paragraphFormats = {ParagraphFormat{}};
  page.paragraphs = {{std::uint32_t(page.text.size()), 0, std::uint32_t(page.formats.size()) - 1}};
  return page;
}

inline QImage Checkers(QSize size) {
  QImage image(size, QImage::Format_ARGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) image.setPixel(x, y, (x ^ y) & 1 ? 0xffcc2200 : 0xff0022cc);
  return image;
}

// A PNG file with a text of its own, which nobody who encodes the picture anew would write again.
inline std::string SignedPng() {
  QImage image = Checkers({8, 6});
  image.setText(QStringLiteral("Author"), QStringLiteral("someone"));
  QByteArray file;
  QBuffer buffer(&file);
  image.save(&buffer, "PNG");
  return file.toStdString();
}

// What the letters and the paragraphs' ends look like, whatever numbers the formats have.
inline std::vector<std::pair<std::uint32_t, CharacterFormat>> LettersOf(const Document& page) {
  std::vector<std::pair<std::uint32_t, CharacterFormat>> letters;
  for (const richtext::Run& run : page.runs) letters.emplace_back(run.length, page.formats[run.format]);
  for (const Paragraph& paragraph : page.paragraphs)
    letters.emplace_back(paragraph.length, page.formats[paragraph.markFormat]);
  return letters;
}

inline std::vector<ParagraphFormat> ParagraphsOf(const Document& page) {
  std::vector<ParagraphFormat> paragraphs;
  for (const Paragraph& paragraph : page.paragraphs)
    paragraphs.push_back(page.paragraphFormats[paragraph.format]);
  return paragraphs;
}

inline void ExpectSame(const Document& page, const Document& expected) {
  EXPECT_EQ(page.text, expected.text);
  EXPECT_TRUE(LettersOf(page) == LettersOf(expected));
  EXPECT_TRUE(ParagraphsOf(page) == ParagraphsOf(expected));
  EXPECT_TRUE(page.pictures == expected.pictures);
}

class BoxTest : public testing::Test {
 protected:
  BoxTest() {
    box.resize(400, 300);
    box.show();
    box.activateWindow();
    box.setFocus();
    QObject::connect(&box, &RichTextBox::Change, [this] { ++changes_; });
    QObject::connect(&box, &RichTextBox::MousePressed, [this] { ++presses; });
  }

  // The notifications since the last call, those that come late included.
  int Changes() {
    QApplication::processEvents();
    return std::exchange(changes_, 0);
  }
  void Set(const Document& page) {
    box.SetTextRTF(WriteRtf(page));
    changes_ = 0;
  }
  void Type(const char* keys) { QTest::keyClicks(&box, QString::fromLatin1(keys)); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&box, key, modifiers);
  }
  void Select(int start, int length) {
    box.SetSelStart(start);
    box.SetSelLength(length);
  }
  void GiveJournalFont() {
    box.SetSelStart(1 << 30);
    box.SetSelFontName(QStringLiteral("Courier"));
    box.SetSelFontSize(8.25);
    box.SetSelBold(true);
    box.SetSelColor(0x00ff0000);
  }
  // The format of the letter before a position.
  CharacterFormat FormatAt(int position) {
    QTextCursor letter(box.document());
    letter.setPosition(position - 1);
    letter.setPosition(position, QTextCursor::KeepAnchor);
    return TakeSelection(letter).formats.at(0);
  }
  void Copy(const std::function<void(QMimeData&)>& offer) {
    auto* data = new QMimeData;
    offer(*data);
    QApplication::clipboard()->setMimeData(data);
  }
  void Paste(const std::function<void(QMimeData&)>& offer) {
    Copy(offer);
    Press(Qt::Key_V, Qt::ControlModifier);
  }
  Document Taken() const { return TakeDocument(*box.document()); }
  // What is in the box is what comes back when it is stored and shown again.
  void ExpectKept() {
    const std::string stored = box.TextRTF();
    const Document before = Taken();
    RichTextBox later;
    later.SetTextRTF(stored);
    EXPECT_EQ(later.TextRTF(), stored);
    ExpectSame(TakeDocument(*later.document()), before);
  }

  RichTextBox box;
  int presses = 0;

 private:
  int changes_ = 0;
};

}  // namespace richtext
