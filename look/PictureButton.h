// A push button with a picture as its face, under its caption: a material pressed as a label. Without a
// picture it is a label of paper.
#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QPushButton>

namespace look {

class PictureButton : public QPushButton {
  Q_OBJECT

 public:
  explicit PictureButton(const QString& caption, QWidget* parent = nullptr);

  // The picture is laid in tiles, its middle in the button's middle; its edges should meet.
  void SetPicture(const QPixmap& picture);
  const QPixmap& Picture() const { return picture_; }

  // The caption stays, for who reads it; one sees an arrow to the left or the right.
  void ShowArrow(Qt::ArrowType arrow);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintArrow(QPainter& painter) const;
  void PaintCaption(QPainter& painter) const;
  QFont CaptionFont() const;
  QString ShownCaption() const;

  QPixmap picture_;
  Qt::ArrowType arrow_ = Qt::NoArrow;
};

}  // namespace look
