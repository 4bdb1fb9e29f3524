// The note under a page that is too high to be shown as it is.
#pragma once

#include <QtWidgets/QLabel>

namespace richtext {

class RestNote : public QLabel {
 public:
  // In this window, and not to be seen yet.
  explicit RestNote(QWidget* parent);

  void Show(bool on) { setVisible(on); }
  bool IsShown() const { return !isHidden(); }
  // Of a note as wide as that; 0 when it is not shown.
  int HeightFor(int width) const { return IsShown() ? heightForWidth(width) : 0; }
  void PlaceBelow(const QWidget& page);
};

}  // namespace richtext
