// A paper that keeps what is drawn on it and where, sheet by sheet.
#pragma once

#include <cmath>
#include <map>

#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>

#include "richtext/Paper.h"
#include "tests/support/Fixtures.h"

namespace fixture {

struct Drawn {
  std::size_t sheet;
  QString text;  // empty: a picture
  QPointF at;    // dots: where it begins on its line
  QRectF place;
  QFont font;
  QColor color;
};

class RecordingEngine : public QPaintEngine {
 public:
  RecordingEngine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& changed) override {
    if (changed.state() & DirtyPen) pen_ = changed.pen();
    if (changed.state() & DirtyTransform) dots_ = changed.transform();
  }
  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QRectF place(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    drawn.push_back({sheet, item.text(), dots_.map(at), dots_.mapRect(place), item.font(), pen_.color()});
  }
  void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override {
    drawn.push_back({sheet, {}, dots_.map(place.bottomLeft()), dots_.mapRect(place), {}, {}});
  }
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  Type type() const override { return User; }

  std::vector<Drawn> drawn;
  std::size_t sheet = 0;

 private:
  QPen pen_;
  QTransform dots_;
};

class RecordingDevice : public QPaintDevice {
 public:
  RecordingDevice(QSizeF size, int dotsPerInch) : size_(size), dotsPerInch_(dotsPerInch) {}
  QPaintEngine* paintEngine() const override { return &engine; }

  QSizeF Points() const { return size_ * 72.0 / dotsPerInch_; }

  mutable RecordingEngine engine;

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
        return static_cast<int>(size_.width());
      case PdmHeight:
        return static_cast<int>(size_.height());
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return dotsPerInch_;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      case PdmDevicePixelRatio:
        return 1;
      default:
        return 24;
    }
  }

 private:
  QSizeF size_;
  int dotsPerInch_;
};

class RecordedPaper : public richtext::Paper {
 public:
  explicit RecordedPaper(RecordingDevice& device) : device_(device) {}
  QPaintDevice& Device() override { return device_; }
  QSizeF Area() const override { return device_.Points(); }
  bool NextSheet() override { return ++device_.engine.sheet, true; }

 private:
  RecordingDevice& device_;
};

// A printer, and the lines on its sheets as a person reads them, from left to right.
class Printed {
 public:
  Printed(QSizeF inches, int dotsPerInch) : device(inches * dotsPerInch, dotsPerInch) {}

  std::unique_ptr<richtext::Paper> Paper() { return std::make_unique<RecordedPaper>(device); }

  // The lines of each sheet.
  std::vector<Texts> Sheets() const {
    std::map<std::pair<std::size_t, long>, std::multimap<double, std::string>> lines;
    for (const Drawn& drawn : All())
      lines[{drawn.sheet, std::lround(drawn.at.y())}].emplace(
          drawn.at.x(), drawn.text.isEmpty() ? "[picture]" : drawn.text.toStdString());
    std::vector<Texts> sheets(device.engine.sheet + 1);
    for (const auto& [place, parts] : lines) {
      std::string& line = sheets[place.first].emplace_back();
      for (const auto& part : parts) line += part.second;
    }
    return sheets;
  }
  const std::vector<Drawn>& All() const { return device.engine.drawn; }

  RecordingDevice device;
};

}  // namespace fixture
