// The sheets of a paper, filled with lines from top to bottom.
#pragma once

#include <QtCore/QSizeF>

class QPainter;

namespace richtext {

class Paper;

// Sizes and places are in the text box's pixels, to which the painter is scaled. Paper and painter must
// outlive it, and the painter must paint on the paper.
class Sheets {
 public:
  Sheets(Paper& paper, QPainter& painter);

  const QSizeF& Size() const { return size_; }
  QPainter& Painter() { return painter_; }
  bool Failed() const { return failed_; }

  // Whether there is room for a line on the sheet in hand, `gap` below the one before it.
  bool HasRoom(double gap, double height) const;
  // Begins the next sheet.
  void Begin();
  // Makes room for a line, `gap` below the one before it, and gives its top. The gap is lost at the top of a
  // sheet.
  double Place(double gap, double height);

 private:
  Paper& paper_;
  QPainter& painter_;
  QSizeF size_;
  double used_ = 0;
  bool blank_ = true;
  bool failed_ = false;
};

}  // namespace richtext
