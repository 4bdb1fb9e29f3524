// The paper is transparent and counts as white where bitmaps are mixed with it. An icon comes as two bitmaps,
// a mask that blackens its shape and an image that is mixed into the black: so its surroundings stay
// transparent.
#include "richtext/bitmaps/ScenePainter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

#include "richtext/bitmaps/DibDecoder.h"

namespace richtext {
namespace {

// A window may be larger than the bitmap in it, as for an icon above its name; one far larger shows only
// paper.
constexpr double MaxPaper = 16;

struct Frame {
  double left, top, right, bottom;
};

// A bitmap that is ready to be painted.
struct Stamp {
  Bitmap bitmap;
  Mixing mixing;
  Area source;  // upright, from the bitmap's top
  Frame target;
  bool mirroredX, mirroredY;
};

// The same area where the axes run the other way.
Area Turned(Area area, bool turnX, bool turnY) {
  if (turnX) area = {-area.left, area.top, -area.width, area.height};
  if (turnY) area = {area.left, -area.top, area.width, -area.height};
  return area;
}

Frame Upright(const Area& area) {
  const auto [left, right] = std::minmax({area.left, area.left + area.width});
  const auto [top, bottom] = std::minmax({area.top, area.top + area.height});
  return {double(left), double(top), double(right), double(bottom)};
}

Frame Union(const Frame& a, const Frame& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

// Writers are out by a unit or two.
bool Holds(const Frame& outer, const Frame& inner) {
  const double x = (outer.right - outer.left) / 32 + 1;
  const double y = (outer.bottom - outer.top) / 32 + 1;
  return inner.left >= outer.left - x && inner.right <= outer.right + x && inner.top >= outer.top - y &&
         inner.bottom <= outer.bottom + y;
}

Area UprightSource(const Blit& blit, const Bitmap& bitmap) {
  Area source = blit.source;
  if (source.width < 0) source = {source.left + source.width, source.top, -source.width, source.height};
  if (source.height < 0) source = {source.left, source.top + source.height, source.width, -source.height};
  if (blit.sourceFromBottom) source.top = bitmap.height - source.top - source.height;
  return source;
}

// Which pixel of the source each of the target's `from` to `to` shows; the target's own length may reach
// beyond.
struct Stretch {
  std::int64_t from, to;  // in the canvas, clipped
  std::int64_t begin, length;
  std::int64_t sourceBegin, sourceLength;
  bool mirrored;

  std::int64_t SourceOf(std::int64_t at) const {
    const std::int64_t step = mirrored ? begin + length - 1 - at : at - begin;
    return sourceBegin + (2 * step + 1) * sourceLength / (2 * length);
  }
};

// `scale` is the canvas's pixels to a unit; `size` the canvas's length.
Stretch StretchOf(double begin, double end, double scale, int size) {
  const std::int64_t first = std::llround(begin * scale);
  const std::int64_t last = std::llround(end * scale);
  return {
      std::max<std::int64_t>(first, 0), std::min<std::int64_t>(last, size), first, last - first, 0, 0, false};
}

std::uint32_t Mixed(std::uint32_t below, std::uint32_t above, Mixing mixing) {
  if (mixing == Mixing::Copy) return above;
  const bool paper = (below & Opaque) == 0;
  const std::uint32_t old = paper ? 0xFFFFFF : below & 0xFFFFFF;
  const std::uint32_t color = above & 0xFFFFFF;
  const std::uint32_t mixed = mixing == Mixing::And   ? old & color
                              : mixing == Mixing::Xor ? old ^ color
                                                      : old | color;
  return paper && mixed == old ? below : Opaque | mixed;
}

class Painter {
 public:
  explicit Painter(const Scene& scene) : scene_(scene) {
    if (!scene.window) return;
    turnX_ = scene.window->width < 0;
    turnY_ = scene.window->height < 0;
  }

  std::optional<Bitmap> Paint() {
    for (const Blit& blit : scene_.blits) Prepare(blit);
    if (stamps_.empty() || !ChooseCanvas()) return std::nullopt;
    for (const Stamp& stamp : stamps_) Put(stamp);
    return std::move(canvas_);
  }

 private:
  void Prepare(const Blit& blit) {
    if (blit.source.width == 0 || blit.source.height == 0 || blit.target.width == 0 ||
        blit.target.height == 0)
      return;
    std::optional<Bitmap> bitmap =
        blit.bits.empty() ? DecodeDib(blit.info, pixelsLeft_) : DecodeDib(blit.info, blit.bits, pixelsLeft_);
    if (!bitmap) return;
    pixelsLeft_ -= bitmap->argb.size();
    const Area source = UprightSource(blit, *bitmap);
    const Area target = Turned(blit.target, turnX_, turnY_);
    stamps_.push_back({std::move(*bitmap), blit.mixing, source, Upright(target),
                       (target.width < 0) != (blit.source.width < 0),
                       (target.height < 0) != (blit.source.height < 0)});
  }

  bool ChooseCanvas() {
    Frame covered = stamps_.front().target;
    for (const Stamp& stamp : stamps_) covered = Union(covered, stamp.target);
    const Frame window = scene_.window ? Upright(Turned(*scene_.window, turnX_, turnY_)) : Frame();
    const bool hasWindow = window.right > window.left && window.bottom > window.top;
    return (hasWindow && Holds(window, covered) && MakeCanvas(window)) || MakeCanvas(covered);
  }

  // As many pixels as make the finest bitmap fit pixel on pixel.
  bool MakeCanvas(const Frame& frame) {
    double scaleX = 0;
    double scaleY = 0;
    double pixels = 0;
    for (const Stamp& stamp : stamps_) {
      scaleX = std::max(scaleX, double(stamp.source.width) / (stamp.target.right - stamp.target.left));
      scaleY = std::max(scaleY, double(stamp.source.height) / (stamp.target.bottom - stamp.target.top));
      pixels += double(stamp.bitmap.argb.size());
    }
    const double width = std::max(1.0, std::round((frame.right - frame.left) * scaleX));
    const double height = std::max(1.0, std::round((frame.bottom - frame.top) * scaleY));
    if (ShowsItsBitmapWhole(width, height)) {
      canvas_ = std::move(stamps_.front().bitmap);
      stamps_.clear();
      return true;
    }
    if (width * height > std::min(pixels * MaxPaper, double(pixelsLeft_))) return false;
    frame_ = frame;
    canvas_ = {int(width), int(height), std::vector<std::uint32_t>(std::size_t(width * height))};
    pixelsLeft_ -= canvas_.argb.size();
    return true;
  }

  // The usual case: the one bitmap is the picture.
  bool ShowsItsBitmapWhole(double width, double height) const {
    const Stamp& stamp = stamps_.front();
    const bool upright =
        !stamp.mirroredX && !stamp.mirroredY && stamp.source.left == 0 && stamp.source.top == 0;
    const bool whole = stamp.source.width == stamp.bitmap.width && stamp.source.height == stamp.bitmap.height;
    return stamps_.size() == 1 && stamp.mixing == Mixing::Copy && upright && whole &&
           width == stamp.bitmap.width && height == stamp.bitmap.height;
  }

  Stretch Columns(const Stamp& stamp) const {
    Stretch columns = StretchOf(stamp.target.left - frame_.left, stamp.target.right - frame_.left,
                                canvas_.width / (frame_.right - frame_.left), canvas_.width);
    columns.sourceBegin = stamp.source.left;
    columns.sourceLength = stamp.source.width;
    columns.mirrored = stamp.mirroredX;
    return columns;
  }

  Stretch Rows(const Stamp& stamp) const {
    Stretch rows = StretchOf(stamp.target.top - frame_.top, stamp.target.bottom - frame_.top,
                             canvas_.height / (frame_.bottom - frame_.top), canvas_.height);
    rows.sourceBegin = stamp.source.top;
    rows.sourceLength = stamp.source.height;
    rows.mirrored = stamp.mirroredY;
    return rows;
  }

  // Bitmaps beyond what may be painted are left out.
  void Put(const Stamp& stamp) {
    const Stretch columns = Columns(stamp);
    const Stretch rows = Rows(stamp);
    if (columns.to <= columns.from || rows.to <= rows.from) return;
    const auto area = static_cast<std::uint64_t>((columns.to - columns.from) * (rows.to - rows.from));
    if (area > pixelsLeft_) return;
    pixelsLeft_ -= area;
    for (std::int64_t y = rows.from; y < rows.to; ++y) {
      const std::int64_t row = rows.SourceOf(y);
      if (row >= 0 && row < stamp.bitmap.height)
        PutRow(stamp, columns, static_cast<int>(row), canvas_.Row(int(y)));
    }
  }

  static void PutRow(const Stamp& stamp, const Stretch& columns, int row, std::uint32_t* to) {
    const std::uint32_t* from = stamp.bitmap.Row(row);
    for (std::int64_t x = columns.from; x < columns.to; ++x) {
      const std::int64_t column = columns.SourceOf(x);
      if (column >= 0 && column < stamp.bitmap.width) to[x] = Mixed(to[x], from[column], stamp.mixing);
    }
  }

  const Scene& scene_;
  bool turnX_ = false;  // the window's axis runs to the left
  bool turnY_ = false;  // or upwards
  std::uint64_t pixelsLeft_ = MaxPixels;
  std::vector<Stamp> stamps_;
  Frame frame_{};
  Bitmap canvas_;
};

}  // namespace

std::optional<Bitmap> PaintScene(const Scene& scene) {
  return Painter(scene).Paint();
}

}  // namespace richtext
