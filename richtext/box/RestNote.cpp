#include "richtext/box/RestNote.h"

namespace richtext {

RestNote::RestNote(QWidget* parent)
    : QLabel(tr("This page is too high to be shown as it is. What is missing or smaller here is kept: it is "
                "stored, printed and exported with the page."),
             parent) {
  setObjectName(QStringLiteral("lblRest"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setMargin(4);
  hide();
}

void RestNote::PlaceBelow(const QWidget& page) {
  const QRect place = page.geometry();
  setGeometry(place.left(), place.bottom() + 1, place.width(), HeightFor(place.width()));
}

}  // namespace richtext
