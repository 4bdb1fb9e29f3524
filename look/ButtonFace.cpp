#include "look/ButtonFace.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainterPath>

#include "look/FocusLine.h"
#include "look/Palettes.h"
#include "look/PixelGrid.h"
#include "look/Theme.h"

namespace look {
namespace {

// In pixels from the button's edge to the line.
constexpr double HairlineInset = 0;
constexpr double SecondHairlineInset = 2;
constexpr double StitchInset = 4;
constexpr double StitchInsetInDoubleEdge = 5;

constexpr double Corner = 2;
constexpr QSize LeastForStitches(60, 22);
constexpr int PaperVeil = 150;  // of 255: the material glimmers through

QPainterPath Outline(const QRectF& rect) {
  QPainterPath path;
  path.addRoundedRect(rect, Corner, Corner);
  return path;
}

QColor Veil(const QColor& color, int alpha) {
  QColor veil = color;
  veil.setAlpha(alpha);
  return veil;
}

QPen Thread(const QColor& color, double width) {
  QPen pen(color, width);
  pen.setCapStyle(Qt::FlatCap);
  pen.setDashPattern({3, 3});
  pen.setDashOffset(0.5);  // the seam begins in the middle of a pixel, the stitches at its edges
  return pen;
}

// A line along the upper and the left edge, within the outline there.
void PaintInnerEdge(QPainter& painter, const QRectF& outline, const QPen& pen) {
  const double line = pen.widthF();
  painter.setPen(pen);
  painter.drawLine(outline.topLeft() + QPointF(2, line), outline.topRight() + QPointF(-2, line));
  painter.drawLine(outline.topLeft() + QPointF(line, 2), outline.bottomLeft() + QPointF(line, -2));
}

class Painting {
 public:
  Painting(QPainter& painter, const ButtonFace& face)
      : painter_(painter),
        face_(face),
        place_(OnPixels(painter, face.place)),
        line_(Hairline(painter)),
        edge_(HairlineOn(face.palette.color(QPalette::Button))) {}

  // At its natural size, whatever the button's own size is: a stretched weave would be another material.
  void Material() {
    painter_.fillRect(face_.place, face_.palette.color(QPalette::Button));
    if (face_.material.isNull()) return;
    const QPointF middle = QRectF(QPointF(), face_.material.deviceIndependentSize()).center() -
                           QRectF(QPointF(), place_.size()).center();
    painter_.drawTiledPixmap(face_.place, face_.material,
                             face_.isDown ? middle.toPoint() - Sunk : middle.toPoint());
    painter_.fillRect(face_.place, Veil(Paper, PaperVeil));
  }

  // The label swells a little towards the light; pressed, it is a hollow.
  void Relief() {
    QLinearGradient light(0, place_.top(), 0, place_.bottom());
    light.setColorAt(face_.isDown ? 1 : 0, Veil(Qt::white, face_.isDown ? 30 : 90));
    light.setColorAt(0.5, Veil(Qt::white, face_.isDown ? 0 : 45));
    light.setColorAt(face_.isDown ? 0 : 1, Veil(edge_, face_.isDown ? 75 : 22));
    painter_.fillRect(face_.place, light);
    if (face_.isEnabled && face_.isUnderMouse && !face_.isDown)
      painter_.fillRect(face_.place, Veil(Qt::white, 80));
  }

  void Edges() {
    const double inner = face_.isDefault ? SecondHairlineInset : HairlineInset;
    PaintInnerEdge(painter_, Inside(inner),
                   QPen(face_.isDown ? Veil(edge_, 90) : Veil(Qt::white, 190), line_));
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(Veil(edge_, face_.isEnabled ? 255 : 120), line_));
    painter_.drawPath(Outline(Inside(HairlineInset)));
    if (face_.isDefault) painter_.drawPath(Outline(Inside(SecondHairlineInset)));
  }

  void Stitching() {
    if (!face_.hasFocus &&
        (!face_.isStitched || face_.place.size().expandedTo(LeastForStitches) != face_.place.size()))
      return;
    const double inset = face_.isDefault ? StitchInsetInDoubleEdge : StitchInset;
    const QRectF seam = Inside(inset).translated(face_.isDown ? QPointF(Sunk) : QPointF());
    if (face_.hasFocus)
      return DrawFocusLine(painter_, seam.adjusted(-line_ / 2, -line_ / 2, line_ / 2, line_ / 2),
                           face_.palette.color(QPalette::ButtonText));
    painter_.setPen(Thread(Veil(edge_, face_.isEnabled ? 95 : 50), line_));
    painter_.drawRect(seam);
  }

 private:
  // The middle of a line that lies so far within the edge.
  QRectF Inside(double inset) const {
    const double middle = OnPixels(painter_, inset) + line_ / 2;
    return place_.adjusted(middle, middle, -middle, -middle);
  }

  QPainter& painter_;
  const ButtonFace& face_;
  QRectF place_;
  double line_;
  QColor edge_;
};

}  // namespace

void PaintButtonFace(QPainter& painter, const ButtonFace& face) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.setClipPath(Outline(OnPixels(painter, face.place)), Qt::IntersectClip);
  Painting painting(painter, face);
  painting.Material();
  painting.Relief();
  painting.Edges();
  painting.Stitching();
  painter.restore();
}

}  // namespace look
