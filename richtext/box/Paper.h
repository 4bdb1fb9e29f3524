// What a text is printed on.
#pragma once

#include <QtCore/QSizeF>

class QPaintDevice;

namespace richtext {

class Paper {
 public:
  virtual ~Paper() = default;
  // The device that is painted on, from the corner of the printable area on.
  virtual QPaintDevice& Device() = 0;
  // The printable area of a sheet in points, 72 to the inch: the device counts it in whole dots.
  virtual QSizeF Area() const = 0;
  // Goes on to the next sheet, while a painter is at work. False when the device has failed, or the printing
  // is given up.
  virtual bool NextSheet() = 0;
  // When the painter has ended: whether everything has arrived, as far as can be known. Throws a
  // platform::Failure where it is known why not.
  virtual bool IsWhole() const { return true; }
  // In place of NextSheet, while a painter is at work: what was printed so far is to go nowhere.
  virtual void GiveUp() {}
  // When the painter has ended behind that: removes what it has left.
  virtual void Withdraw() {}
};

}  // namespace richtext
