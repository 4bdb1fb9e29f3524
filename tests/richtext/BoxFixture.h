// The text box as a person uses it, shown, with real keys; and pages to put into it.
#pragma once

#include "platform/files/InputFile.h"
#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/TextDocument.h"
#include "tests/richtext/RtfDump.h"
#include "tests/support/Toolkit.h"

namespace richtext {

// RTF of a page that begins in 10 points of Arial.
inline std::string Page(const std::string& body) {
  return R"({\rtf1\deftab300{\fonttbl{\f0 Arial;}{\f1 No Such Font;}}{\colortbl;\red255;\red1;}\f0\fs20 )" +
         body + '}';
}
inline std::string InLoud(const std::string& body) {
  return R"({\f1\fs37\cf1\b\i\ul\strike )" + body + '}';
}

// The formats of such letters, and of those that the journal's font is given to.
inline const std::string Plain = "(20 Arial)";
inline const std::string Loud = "(b i u s 37 No Such Font #ff0000)";
inline const std::string Journal = "(b 17 Courier #0000ff)";

inline QImage Checkers(QSize size) {
  QImage image(size, QImage::Format_ARGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) image.setPixel(x, y, (x ^ y) & 1 ? 0xffcc2200 : 0xff0022cc);
  return image;
}

// A PNG file with a text of its own, which nobody who encodes the picture anew would write again.
inline QByteArray SignedPng() {
  return QByteArray::fromStdString(platform::ReadFile(fixture::PathOfSample("photographs/signed.png")));
}
inline std::string PictureGroup(const std::string& words) {
  return "{\\pict\\pngblip" + words + ' ' + SignedPng().toHex().toStdString() + '}';
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
  void Set(const std::string& rtf) {
    box.SetTextRTF(rtf);
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
  std::string FormatAt(int position) {
    QTextCursor letter(box.document());
    letter.setPosition(position - 1);
    letter.setPosition(position, QTextCursor::KeepAnchor);
    return Dump(TakeSelection(letter).formats.at(0));
  }
  static void Copy(const std::function<void(QMimeData&)>& offer) {
    auto* data = new QMimeData;
    offer(*data);
    QApplication::clipboard()->setMimeData(data);
  }
  void Paste(const std::function<void(QMimeData&)>& offer) {
    Copy(offer);
    Press(Qt::Key_V, Qt::ControlModifier);
  }
  std::string Text() const { return box.Text().toStdString(); }
  Document Taken() const { return TakeDocument(*box.document()); }
  // What is in the box is what comes back when it is stored and shown again.
  void ExpectKept() {
    const std::string before = Dump(Taken()), stored = box.TextRTF();
    box.SetTextRTF(stored);
    EXPECT_EQ(box.TextRTF(), stored);
    EXPECT_EQ(Dump(Taken()), before);
  }
  // The box holds the page, all that RTF can tell of it.
  void ExpectHeld(const std::string& rtf) {
    SCOPED_TRACE(rtf.substr(0, 300));
    FillDocument(ReadRtf(rtf), *box.document());
    EXPECT_EQ(Dump(Taken()), Dump(ReadRtf(rtf)));
    EXPECT_EQ(WriteRtf(ReadRtf(box.TextRTF())), WriteRtf(ReadRtf(rtf)));
  }

  RichTextBox box;
  int presses = 0;

 private:
  int changes_ = 0;
};

}  // namespace richtext
