// A push button with a picture as its face, under its caption.
#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QPushButton>

namespace look {

class PictureButton : public QPushButton {
  Q_OBJECT

 public:
  explicit PictureButton(const QString& caption, QWidget* parent = nullptr);

  void SetPicture(const QPixmap& picture);
  const QPixmap& Picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintFace(QPainter& painter) const;
  void PaintEdges(QPainter& painter) const;
  void PaintCaption(QPainter& painter) const;
  QColor Edge() const;

  QPixmap picture_;
};

}  // namespace look
