// A printer that keeps what is drawn on it and where, sheet by sheet.
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
  QString text;
  QPointF at;  // dots: where it begins on its line
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
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  Type type() const override { return User; }

  std::vector<Drawn> drawn;
  std::size_t sheet = 0;

 private:
  QPen pen_;
  QTransform dots_;
};

class Printed : public QPaintDevice {
 public:
  explicit Printed(QSizeF inches = {8, 10.5}) : inches_(inches) {}

  QPaintEngine* paintEngine() const override { return &engine_; }
  // `whole`: what it says at the end of whether all has arrived.
  std::unique_ptr<richtext::Paper> Paper(bool whole = true) { return std::make_unique<Sheet>(*this, whole); }

  const std::vector<Drawn>& All() const { return engine_.drawn; }
  // The lines of each sheet as a person reads them, from left to right.
  std::vector<Texts> Sheets() const {
    std::map<std::pair<std::size_t, long>, std::multimap<double, std::string>> lines;
    for (const Drawn& drawn : All())
      lines[{drawn.sheet, std::lround(drawn.at.y())}].emplace(drawn.at.x(), drawn.text.toStdString());
    std::vector<Texts> sheets(engine_.sheet + 1);
    for (const auto& [place, parts] : lines) {
      std::string& line = sheets[place.first].emplace_back();
      for (const auto& part : parts) line += part.second;
    }
    return sheets;
  }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    if (metric == PdmWidth) return static_cast<int>(inches_.width() * DotsPerInch);
    if (metric == PdmHeight) return static_cast<int>(inches_.height() * DotsPerInch);
    if (metric == PdmDevicePixelRatio) return 1;
    if (metric == PdmDevicePixelRatioScaled) return static_cast<int>(devicePixelRatioFScale());
    return DotsPerInch;
  }

 private:
  static constexpr int DotsPerInch = 300;

  struct Sheet : richtext::Paper {
    Sheet(Printed& printer, bool isWhole) : device(printer), whole(isWhole) {}
    QPaintDevice& Device() override { return device; }
    QSizeF Area() const override { return device.inches_ * 72.0; }
    bool NextSheet() override {
      ++device.engine_.sheet;
      return true;
    }
    bool IsWhole() const override { return whole; }

    Printed& device;
    bool whole;
  };

  QSizeF inches_;
  mutable RecordingEngine engine_;
};

}  // namespace fixture
