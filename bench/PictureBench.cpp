// What a page with pictures costs: seven photographs of 12 megapixels, beside decoding them in full.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>
#include <vector>

#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>

#include "bench/Beside.h"
#include "pictures/PictureFile.h"

namespace {

constexpr QSize PhotoSize(4000, 3000);
constexpr int Photos = 7;

// A slope of light with the noise of a sensor on it, so that it is about as hard to decode as a photograph.
QImage Photo(quint32 seed) {
  QImage image(PhotoSize, QImage::Format_RGB32);
  QRandomGenerator noise(seed);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int grain = static_cast<int>(noise.generate() % 24);
      line[x] = qRgb(x * 200 / image.width() + grain, y * 200 / image.height() + grain, 120 + grain);
    }
  }
  return image;
}

class Album {
 public:
  Album() {
    for (int i = 0; i < Photos; ++i) {
      const QString path = folder_.filePath(QStringLiteral("photo%1.jpg").arg(i));
      if (!Photo(static_cast<quint32>(i)).save(path, "JPG", 90)) std::abort();
      paths.push_back(QFile::encodeName(path).toStdString());
    }
  }
  std::vector<std::string> paths;

 private:
  QTemporaryDir folder_;
};

void DecodeInFull(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) benchmark::DoNotOptimize(QImage(QFile::decodeName(path.c_str())));
}

// The argument is the scale of the dialog in percent. The label's ratio is the decoding in full over the
// page's, so that 0.8 of its time reads 1.25 of its speed.
void SevenPhotographs(benchmark::State& state) {
  static const Album album;
  const QSize shown = PhotoSize * (static_cast<double>(state.range(0)) / 100 * 2540 / 96 / 15);
  double least = 1e9;
  double leastInFull = 1e9;
  for ([[maybe_unused]] auto iteration : state) {
    leastInFull = std::min(leastInFull, bench::SecondsOf([] { DecodeInFull(album.paths); }));
    const double seconds = bench::SecondsOf([shown] {
      std::vector<QImage> page;
      for (const std::string& path : album.paths) page.push_back(pictures::LoadScaled(path, shown));
      benchmark::DoNotOptimize(page.data());
    });
    least = std::min(least, seconds);
    state.SetIterationTime(seconds);
  }
  char label[80];
  std::snprintf(label, sizeof label, "%.2f of %.0f ms in full", least / leastInFull, leastInFull * 1e3);
  state.SetLabel(label);
}
BENCHMARK(SevenPhotographs)->Arg(10)->Arg(25)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  QGuiApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
