// The shapes that are open, the property in hand of one, and the picture in hand, which RTF tells twice.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext::rtf {

// A shape (\shp) tells of itself by properties, one of which can be its picture, and then again as older
// readers know it (\shprslt); a picture stands in \shppict, and again in \nonshppict. The second telling
// counts where the first showed nothing. A group of shapes (\shpgrp) is one, too, and tells in what units the
// shapes in it tell their edges.
class ShapeState {
 public:
  enum Edge : std::uint8_t { Left, Top, Right, Bottom };

  // The group in force, at this depth, is a shape.
  void BeginShape(std::size_t depth);
  void SetEdge(Edge edge, std::int32_t twips) {
    if (!open_.empty()) open_.back().edges[edge] = twips;
  }
  void EndGroup(std::size_t depth) {
    if (!open_.empty() && open_.back().depth == depth) open_.pop_back();
  }

  void BeginModernPicture() { pictureShown_ = false; }
  void NoteText() { ++shown_; }
  void NotePicture() {
    ++shown_;
    pictureShown_ = true;
  }
  // The picture of a shape is as large as that, if it tells its edges.
  void Fit(Picture& picture) const;

  // At the second telling: whether the first one showed something. Of pictures it is asked once for each.
  bool ShapeIsShown() const { return !open_.empty() && shown_ != open_.back().shownBefore; }
  bool TakePictureIsShown() { return std::exchange(pictureShown_, false); }

  // A property's name (\sn) comes before its value (\sv).
  void BeginProperty() { property_.clear(); }
  void SetPropertyName(const std::u16string& name) { property_ = name; }
  bool PropertyIsPicture() const { return property_ == u"pib"; }
  bool PropertyIsEdge() const {
    return property_.starts_with(RelativeEdge) || property_.starts_with(GroupEdge);
  }
  void SetPropertyValue(const std::u16string& digits);  // of an edge

 private:
  static constexpr std::u16string_view RelativeEdge = u"rel";
  static constexpr std::u16string_view GroupEdge = u"group";
  using Edges = std::array<std::int32_t, 4>;
  struct Shape {
    std::size_t depth = 0;
    std::uint64_t shownBefore = 0;
    Edges edges{};            // twips, or units of the group around it
    Edges inside{};           // of a group: its own edges in the units of the shapes in it
    bool isRelative = false;  // which of the two the edges are
    double unitWidth = 1;     // of the group around it, twips
    double unitHeight = 1;

    double Twips(Edge before, Edge after, double unit) const;
  };

  std::vector<Shape> open_;  // the innermost last
  std::uint64_t shown_ = 0;  // how often something was shown, of whatever shape it is
  bool pictureShown_ = false;
  std::u16string property_;
};

}  // namespace richtext::rtf
