// What a page with pictures costs: seven photographs of 12 megapixels, beside decoding them in full.
#include <benchmark/benchmark.h>
#include <cmath>
#include <string>
#include <vector>

#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include "bench/Beside.h"
#include "pictures/decoding/PictureFile.h"
#include "pictures/PictureSlots.h"
#include "pictures/PictureToAdd.h"
#include "pictures/frmAddPicture.h"
#include "tests/support/Staging.h"

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

std::int32_t AtScale(int pixels, double scale) {
  return static_cast<std::int32_t>(std::lround(pixels * 2540.0 / 96 / 15 * scale));
}

// The rows of the page, each at this scale of the dialog.
void LayOut(const Album& album, double scale) {
  ResetState();
  Journals.resize(2);
  Staged().CurrentJournal = 1;
  Journals[1].FileName = "j00000.tqf";
  Pictures.resize(1);
  for (const std::string& path : album.paths) {
    PagePicture& row = Pictures.emplace_back();
    row.PictureFile = path;
    row.PictureWidth = AtScale(PhotoSize.width(), scale);
    row.PictureHeight = AtScale(PhotoSize.height(), scale);
    row.JournalFile = Journals[1].FileName;
  }
  PictureCount = Photos;
}

// A turn to the page. The argument is the scale of the dialog in percent.
void SevenPhotographs(benchmark::State& state) {
  static const Album album;
  QWidget page;
  page.resize(565, 648);
  PictureSlots slots_(&page);
  LayOut(album, static_cast<double>(state.range(0)) / 100);
  bench::RunBeside(
      state, [] { return bench::SecondsOf([] { ShowPagePictures(); }); },
      [] { return bench::SecondsOf([] { DecodeInFull(album.paths); }); });
}
BENCHMARK(SevenPhotographs)->Arg(10)->Arg(25)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

// A press of a scale button. The argument is the scale in percent.
void ScaleSeenLive(benchmark::State& state) {
  static const Album album;
  auto& dialog = look::The<frmAddPicture>();
  dialog.picTemp->SetPicture(QPixmap::fromImage(pictures::LoadForPreview(album.paths[0])));
  dialog.picTemp->resize(PhotoSize);
  AddScale = static_cast<double>(state.range(0)) / 100;
  for ([[maybe_unused]] auto iteration : state) look::The<frmAddPicture>().ShowScaledPreview();
}
BENCHMARK(ScaleSeenLive)->Arg(10)->Arg(25)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
