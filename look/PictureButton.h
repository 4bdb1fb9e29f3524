// A push button with a picture as its face, under its caption: a material pressed as a label. Without a
// picture it is the desktop's own button.
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

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintMaterial(QPainter& painter) const;
  void PaintRelief(QPainter& painter) const;
  void PaintEdges(QPainter& painter) const;
  void PaintStitching(QPainter& painter) const;
  void PaintCaption(QPainter& painter) const;
  bool HasDoubleEdge() const;
  QColor Edge() const;
  QFont CaptionFont() const;
  QString ShownCaption() const;

  QPixmap picture_;
};

}  // namespace look
