// What was met of the shape and of the picture in hand, each of which RTF tells twice.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"

namespace richtext::rtf {

// A shape (\shp) tells of itself by properties, one of which can be its picture, and then again as older
// readers know it (\shprslt); a picture stands in \shppict, and again in \nonshppict. The second telling
// counts where the first showed nothing.
class ShapeState {
 public:
  enum Edge : std::uint8_t { Left, Top, Right, Bottom };

  void BeginShape() {
    shapeShown_ = false;
    edges_ = {};
  }
  void SetEdge(Edge edge, std::int32_t twips) { edges_[edge] = twips; }
  void BeginModernPicture() { pictureShown_ = false; }

  // Something is shown, of whatever shape it is.
  void NoteText() { shapeShown_ = true; }
  void NotePicture() { pictureShown_ = shapeShown_ = true; }

  // The picture of a shape is as large as that, if it tells its edges.
  void Fit(Picture& picture) const {
    const std::int32_t width = FittingPictureSize(std::int64_t{edges_[Right]} - edges_[Left]);
    const std::int32_t height = FittingPictureSize(std::int64_t{edges_[Bottom]} - edges_[Top]);
    if (width == 0 || height == 0) return;
    picture.widthTwips = width;
    picture.heightTwips = height;
    picture.crop = {};
  }

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
  std::array<std::int32_t, 4> edges_{};  // twips
  std::u16string property_;
};

}  // namespace richtext::rtf
