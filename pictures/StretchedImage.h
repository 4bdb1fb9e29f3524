// An image that is stretched over its whole control, whatever its own size and shape are.
#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class StretchedImage : public QWidget {
  Q_OBJECT

 public:
  explicit StretchedImage(QWidget* parent = nullptr);
  // Transparent parts let through what lies beneath. A null image shows nothing.
  void SetPicture(const QImage& picture);
  const QImage& Picture() const { return picture_; }

 Q_SIGNALS:
  // Any button. No mouse event goes on to what lies beneath.
  void MouseDown();
  void MouseMove();  // with a button down, wherever the pointer is
  void MouseUp();
  // The left button went down and up over the image. The second click of a double click is one, too.
  void Click();
  // The second press of a double click, in the place of its MouseDown. With another button than the left one
  // it is a MouseDown.
  void DblClick();
  void Wheel(QWheelEvent* event);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};
