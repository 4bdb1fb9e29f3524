// A box that shows its picture from the top left corner over its background colour.
#pragma once

#include <cstdint>

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
  void SetBackColor(std::uint32_t color);  // 0x00BBGGRR
  std::uint32_t BackColor() const { return backColor_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
  Qt::Orientations repeats_;
  std::uint32_t backColor_ = 0xFFFFFF;
};

}  // namespace look
