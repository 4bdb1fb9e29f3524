// A label that leads somewhere: it is clicked, or pressed with the keyboard.
#pragma once

#include <QtWidgets/QLabel>

class LinkLabel : public QLabel {
  Q_OBJECT

 public:
  explicit LinkLabel(QWidget* parent = nullptr);

 Q_SIGNALS:
  void Clicked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isSecondClick_ = false;  // of a double click, whose first one has been told
};
