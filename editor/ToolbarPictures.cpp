// One simple object each, drawn on a grid of 16 x 16. A line of one pixel runs through the middle of its
// pixels, which is why most places end in .5.
#include "editor/ToolbarPictures.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {

const QColor ink(0x2b, 0x24, 0x30);
const QColor paper(0xff, 0xfd, 0xf6);

void Line(QPainter& p, double x1, double y1, double x2, double y2) {
  p.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

// The painter comes with the ink as its pen and the picture's colour as its brush.
void DrawNewPage(QPainter& p) {
  const QBrush colour = p.brush();
  p.setBrush(paper);
  p.drawPolygon(QPolygonF{{2.5, 1.5}, {8.5, 1.5}, {11.5, 4.5}, {11.5, 13.5}, {2.5, 13.5}});
  p.drawPolyline(QPolygonF{{8.5, 1.5}, {8.5, 4.5}, {11.5, 4.5}});
  p.setBrush(colour);
  p.drawPolygon(QPolygonF{{10.5, 7.5},
                          {12.5, 7.5},
                          {12.5, 9.5},
                          {14.5, 9.5},
                          {14.5, 11.5},
                          {12.5, 11.5},
                          {12.5, 13.5},
                          {10.5, 13.5},
                          {10.5, 11.5},
                          {8.5, 11.5},
                          {8.5, 9.5},
                          {10.5, 9.5}});
}

void DrawTitlePage(QPainter& p) {  // a closed book
  p.drawRoundedRect(QRectF(2.5, 1.5, 11, 13), 1.5, 1.5);
  Line(p, 4.5, 1.5, 4.5, 14.5);
  p.setBrush(paper);
  p.drawRect(QRectF(6.5, 4.5, 5, 3));
}

void DrawArrow(QPainter& p, double tip) {  // to the right, twelve pixels long
  const double head = tip - 6;
  const double tail = tip - 12;
  p.drawPolygon(QPolygonF{{tail, 6}, {head, 6}, {head, 2.5}, {tip, 8}, {head, 13.5}, {head, 10}, {tail, 10}});
}

void DrawNext(QPainter& p) {
  DrawArrow(p, 14);
}

void DrawBack(QPainter& p) {
  p.translate(16, 0);
  p.scale(-1, 1);
  DrawArrow(p, 14);
}

void DrawLastPage(QPainter& p) {
  DrawArrow(p, 12.5);
  p.drawRect(QRectF(13.5, 2.5, 1.5, 11));
}

void DrawPrinter(QPainter& p) {
  p.drawRoundedRect(QRectF(1.5, 6.5, 13, 6), 1.5, 1.5);
  p.setBrush(paper);
  p.drawRect(QRectF(4.5, 1.5, 7, 5));
  p.drawRect(QRectF(4.5, 10.5, 7, 4));
  Line(p, 12.5, 8.5, 12.5, 8.5);
}

void DrawIndex(QPainter& p) {  // a tree of pages
  p.drawRect(QRectF(1.5, 1.5, 5, 3));
  p.setBrush(paper);
  p.drawRect(QRectF(8.5, 6.5, 6, 3));
  p.drawRect(QRectF(8.5, 11.5, 6, 3));
  p.drawPolyline(QPolygonF{{3.5, 4.5}, {3.5, 13}, {8.5, 13}});
  Line(p, 3.5, 8, 8.5, 8);
}

void DrawCalendar(QPainter& p) {
  const QBrush colour = p.brush();
  p.setBrush(paper);
  p.drawRoundedRect(QRectF(1.5, 2.5, 13, 12), 1.5, 1.5);
  p.setBrush(colour);
  p.drawRect(QRectF(1.5, 3.5, 13, 3));
  for (const double x : {4.5, 11.5}) Line(p, x, 1, x, 4);
  for (const double y : {9.0, 12.0})
    for (const double x : {4.0, 7.5, 11.0}) p.fillRect(QRectF(x, y, 2, 1.5), ink);
}

void DrawSmile(QPainter& p) {
  p.drawEllipse(QRectF(1.5, 1.5, 13, 13));
  for (const double x : {5.0, 9.5}) p.fillRect(QRectF(x, 5, 1.5, 2.5), ink);
  p.setBrush(Qt::NoBrush);
  p.drawArc(QRectF(4.5, 4.5, 7, 7), 200 * 16, 140 * 16);
}

void DrawPhotograph(QPainter& p) {
  const QBrush colour = p.brush();
  p.setBrush(paper);
  p.drawRect(QRectF(1.5, 2.5, 13, 11));
  p.setBrush(colour);
  p.drawPolygon(QPolygonF{{3.5, 11.5}, {6.5, 6.5}, {9, 10}, {10.5, 8}, {12.5, 11.5}});
  p.drawEllipse(QRectF(10, 4.5, 2, 2));
}

void DrawLetter(QPainter& p) {
  QPainterPath letter;
  letter.addPolygon(QPolygonF{{6.5, 1.5},
                              {9.5, 1.5},
                              {14.5, 14.5},
                              {11.5, 14.5},
                              {10.5, 11.5},
                              {5.5, 11.5},
                              {4.5, 14.5},
                              {1.5, 14.5},
                              {6.5, 1.5}});
  letter.addPolygon(QPolygonF{{8, 5}, {6.4, 9.5}, {9.6, 9.5}, {8, 5}});
  p.drawPath(letter);
}

void DrawSliders(QPainter& p) {
  for (const double y : {3.5, 8.5, 13.0}) Line(p, 1.5, y, 14.5, y);
  p.drawRoundedRect(QRectF(9.5, 1.5, 3, 4), 1, 1);
  p.drawRoundedRect(QRectF(3.5, 6.5, 3, 4), 1, 1);
  p.drawRoundedRect(QRectF(7.5, 11, 3, 4), 1, 1);
}

void DrawLabel(QPainter& p) {  // a luggage label on its string
  p.drawPolygon(QPolygonF{{1.5, 8.5}, {7.5, 2.5}, {13.5, 2.5}, {13.5, 8.5}, {7.5, 14.5}});
  p.setBrush(paper);
  p.drawEllipse(QRectF(9.5, 4.5, 2.5, 2.5));
}

void DrawQuestion(QPainter& p) {
  p.drawEllipse(QRectF(1.5, 1.5, 13, 13));
  QPainterPath hook(QPointF(5.8, 6.4));
  hook.cubicTo(5.8, 3.2, 10.4, 3.2, 10.4, 6.2);
  hook.cubicTo(10.4, 8, 8, 8, 8, 9.8);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawPath(hook);
  Line(p, 8, 12, 8, 12.1);
}

struct Drawing {
  const char16_t* key;
  void (*draw)(QPainter&);
  QRgb colour;
  QRgb lit;
};

constexpr QRgb InkBlue = 0xff7d93b8, InkBlueLit = 0xff8fb6f0;
constexpr QRgb Leaf = 0xff87a878, LeafLit = 0xff9ed87f;
constexpr QRgb Straw = 0xffcdb878, StrawLit = 0xfff4d873;
constexpr QRgb Terracotta = 0xffb98470, TerracottaLit = 0xffec9570;
constexpr QRgb Plum = 0xff9c83a6, PlumLit = 0xffc796dd;

constexpr Drawing drawings[] = {
    {u"btnNewPage", DrawNewPage, Leaf, LeafLit},
    {u"btnFirstPage", DrawTitlePage, Terracotta, TerracottaLit},
    {u"btnBack", DrawBack, InkBlue, InkBlueLit},
    {u"btnNext", DrawNext, InkBlue, InkBlueLit},
    {u"btnLastPage", DrawLastPage, InkBlue, InkBlueLit},
    {u"btnPrint", DrawPrinter, InkBlue, InkBlueLit},
    {u"btnIndex", DrawIndex, Leaf, LeafLit},
    {u"btnCal", DrawCalendar, Terracotta, TerracottaLit},
    {u"btnInsertEmoticon", DrawSmile, Straw, StrawLit},
    {u"btnInsertPicture", DrawPhotograph, Leaf, LeafLit},
    {u"btnFont", DrawLetter, InkBlue, InkBlueLit},
    {u"btnOptions", DrawSliders, Plum, PlumLit},
    {u"btnJournalProperties", DrawLabel, Straw, StrawLit},
    {u"btnHelp", DrawQuestion, Plum, PlumLit},
};

QPixmap Draw(const Drawing& drawing, QRgb colour, int scale) {
  QPixmap picture(16 * scale, 16 * scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.scale(scale, scale);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(colour));
  drawing.draw(painter);
  painter.end();
  picture.setDevicePixelRatio(scale);
  return picture;
}

}  // namespace

QIcon ToolbarPicture(const QString& key) {
  QIcon icon;
  for (const Drawing& drawing : drawings) {
    if (key != QStringView(drawing.key)) continue;
    for (const int scale : {1, 2}) {
      icon.addPixmap(Draw(drawing, drawing.colour, scale), QIcon::Normal);
      icon.addPixmap(Draw(drawing, drawing.lit, scale), QIcon::Active);
    }
  }
  return icon;
}
