// A box that shows its picture from the top left corner over its background colour.
#pragma once

#include <cstdint>
#include <functional>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace look {

class PictureBox : public QWidget {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);
  void SetPicture(const QPixmap& picture);
  // From now on the picture begins again where it ends, in these directions.
  void Repeat(Qt::Orientations directions);
  const QPixmap& Picture() const { return picture_; }
  // From now on the picture and the shade grow with the box, which is so many pixels wide by design.
  void SetDesignWidth(int pixels);
  // Painted over the background and under the picture, from now on.
  void SetShade(std::function<void(QPainter&, const QRect& box)> shade);
  void SetBackColor(std::uint32_t color);  // 0x00BBGGRR
  std::uint32_t BackColor() const { return backColor_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
  std::function<void(QPainter&, const QRect&)> shade_;
  Qt::Orientations repeats_;
  int designWidth_ = 0;
  std::uint32_t backColor_ = 0xFFFFFF;
};

}  // namespace look
