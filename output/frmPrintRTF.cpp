#include "output/frmPrintRTF.h"

#include <QtGui/QAbstractTextDocumentLayout>

namespace {

class NoLayout : public QAbstractTextDocumentLayout {
 public:
  using QAbstractTextDocumentLayout::QAbstractTextDocumentLayout;

  void draw(QPainter*, const PaintContext&) override {}
  int hitTest(const QPointF&, Qt::HitTestAccuracy) const override { return 0; }
  int pageCount() const override { return 1; }
  QSizeF documentSize() const override { return {}; }
  QRectF frameBoundingRect(QTextFrame*) const override { return {}; }
  QRectF blockBoundingRect(const QTextBlock&) const override { return {}; }

 protected:
  void documentChanged(int, int, int) override {}
};

}  // namespace

frmPrintRTF::frmPrintRTF()
    : Form(Kind::Window, QStringLiteral("frmPrintRTF"), QStringLiteral("Thorn Quill"), 6000, 4500) {
  txtM =
      Place(new richtext::RichTextBox(this), "txtM", 0, 0, 6000, 4500, QStringLiteral("the text to print"));
  txtM->document()->setDocumentLayout(new NoLayout(txtM->document()));
}
