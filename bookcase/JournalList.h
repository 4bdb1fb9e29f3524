// The list of the bookcase: each journal as its icon on a board, with its name on a label below.
#pragma once

#include <QtWidgets/QListWidget>

// The items' columns share the width evenly. A long name takes up to three lines and ends in an ellipsis; the
// tool tip of an item shows only where its name has been cut short.
class JournalList : public QListWidget {
 public:
  explicit JournalList(QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void RuleGrid();
  void PaintBoards(QPainter& painter) const;
  void PaintHint(QPainter& painter) const;
};
