// What was met of the shape and of the picture in hand, each of which RTF tells twice.
#pragma once

#include <string>
#include <utility>

namespace richtext::rtf {

// A shape (\shp) tells of itself by properties, one of which can be its picture, and then again as older
// readers know it (\shprslt); a picture stands in \shppict, and again in \nonshppict. The second telling
// counts where the first showed nothing.
class ShapeState {
 public:
  void BeginShape() { shapeShown_ = false; }
  void BeginModernPicture() { pictureShown_ = false; }

  // Something is shown, of whatever shape it is.
  void NoteText() { shapeShown_ = true; }
  void NotePicture() { pictureShown_ = shapeShown_ = true; }

  // At the second telling: whether the first one showed something. Of pictures it is asked once for each.
  bool ShapeIsShown() const { return shapeShown_; }
  bool TakePictureIsShown() { return std::exchange(pictureShown_, false); }

  // A property's name (\sn) comes before its value (\sv).
  void BeginProperty() { property_.clear(); }
  void SetPropertyName(const std::u16string& name) { property_ = name; }
  bool PropertyIsPicture() const { return property_ == u"pib"; }

 private:
  bool shapeShown_ = false;
  bool pictureShown_ = false;
  std::u16string property_;
};

}  // namespace richtext::rtf
