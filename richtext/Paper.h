// What a text is printed on.
#pragma once

class QPaintDevice;

namespace richtext {

class Paper {
 public:
  virtual ~Paper() = default;
  // The device that is painted on. Its width and height are the printable area of a sheet in dots, its
  // logical resolution tells how many dots are an inch.
  virtual QPaintDevice& Device() = 0;
  // Goes on to the next sheet, while a painter is at work. False when the device has failed.
  virtual bool NextSheet() = 0;
};

}  // namespace richtext
