// What a page with pictures costs: seven photographs of 12 megapixels, beside decoding them in full.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtGui/QImage>

#include "bench/Beside.h"
#include "bench/Memory.h"
#include "pictures/PictureSlots.h"
#include "pictures/PictureToAdd.h"
#include "pictures/decoding/PictureFile.h"
#include "pictures/frmAddPicture.h"
#include "platform/files/Files.h"
#include "tests/support/Photograph.h"
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

const Album& TheAlbum() {
  static const Album album;
  return album;
}

void DecodeInFull(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) benchmark::DoNotOptimize(QImage(QFile::decodeName(path.c_str())));
}

std::int32_t AtScale(int pixels, double scale) {
  return static_cast<std::int32_t>(std::lround(pixels * 2540.0 / 96 / 15 * scale));
}

// The rows of the page, each at this scale of the dialog.
void LayOut(const std::vector<std::string>& paths, double scale) {
  ResetState();
  Journals.resize(2);
  Staged().CurrentJournal = 1;
  Journals[1].FileName = "j00000.tqf";
  Pictures.resize(1);
  for (const std::string& path : paths) {
    PagePicture& row = Pictures.emplace_back();
    row.PictureFile = path;
    row.PictureWidth = AtScale(PhotoSize.width(), scale);
    row.PictureHeight = AtScale(PhotoSize.height(), scale);
    row.JournalFile = Journals[1].FileName;
  }
  PictureCount = static_cast<std::int32_t>(paths.size());
}

// Page 0 has them; the pages on either side of it have none.
class Pages {
 public:
  explicit Pages(std::int64_t percent) {
    page_.resize(565, 648);
    LayOut(TheAlbum().paths, static_cast<double>(percent) / 100);
  }
  // Until the page is painted.
  void TurnTo(std::int32_t page) {
    Staged().CurrentPage = page;
    ShowPagePictures();
    page_.render(&screen_);
  }
  // Somebody looks at a page until its neighbour is ready, or for half a minute.
  void Linger() {
    const auto width = static_cast<std::size_t>(Pictures[1].PictureWidth);
    const auto height = static_cast<std::size_t>(Pictures[1].PictureHeight);
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 30000 && slots_.BytesKept() < Photos * 3 * width * height;) {
      QThread::msleep(20);
      QCoreApplication::processEvents();
    }
  }

 private:
  QWidget page_;
  QImage screen_{565, 648, QImage::Format_RGB32};
  PictureSlots slots_{&page_};
};

// The first visit of the page. The argument is the scale of the dialog in percent.
void SevenPhotographs(benchmark::State& state) {
  Pages pages(state.range(0));
  bench::RunBeside(
      state,
      [&] {
        ForgetPagePictures();
        return bench::SecondsOf([&] { pages.TurnTo(0); });
      },
      [] { return bench::SecondsOf([] { DecodeInFull(TheAlbum().paths); }); });
}
BENCHMARK(SevenPhotographs)->Arg(10)->Arg(25)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

// The same beside decoding them at their size on the page, one after another.
void SevenSideBySide(benchmark::State& state) {
  Pages pages(25);
  bench::RunBeside(
      state,
      [&] {
        ForgetPagePictures();
        return bench::SecondsOf([&] { pages.TurnTo(0); });
      },
      [] {
        return bench::SecondsOf([] {
          for (const std::string& path : TheAlbum().paths)
            benchmark::DoNotOptimize(
                pictures::Decode({path, {Pictures[1].PictureWidth, Pictures[1].PictureHeight}}));
        });
      });
}
BENCHMARK(SevenSideBySide)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

// Coming back to the page, from one without pictures.
void SevenSeenBefore(benchmark::State& state) {
  Pages pages(25);
  pages.TurnTo(0);
  for ([[maybe_unused]] auto iteration : state) {
    pages.TurnTo(1);
    state.SetIterationTime(bench::SecondsOf([&] { pages.TurnTo(0); }));
  }
}
BENCHMARK(SevenSeenBefore)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

// To a page that was never seen, from its neighbour, on which somebody has lingered.
void SevenOfANeighbour(benchmark::State& state) {
  Pages pages(25);
  for ([[maybe_unused]] auto iteration : state) {
    ForgetPagePictures();
    pages.TurnTo(1);
    pages.Linger();
    state.SetIterationTime(bench::SecondsOf([&] { pages.TurnTo(0); }));
  }
}
BENCHMARK(SevenOfANeighbour)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);

// What the program takes more after 200 pages of photographs than before them, and the bytes of pixels that
// it keeps.
void TwoHundredPages(benchmark::State& state) {
  Pages pages(10);
  for ([[maybe_unused]] auto iteration : state) {
    pages.TurnTo(1);
    const double before = bench::MegabytesInUse();
    for (int i = 0; i < 200; ++i) {
      for (std::int32_t row = 1; row <= PictureCount; ++row)
        ++Pictures[static_cast<std::size_t>(row)].PictureWidth;
      pages.TurnTo(0);
    }
    pages.TurnTo(1);
    state.counters["more_mb"] = bench::MegabytesInUse() - before;
  }
}
BENCHMARK(TwoHundredPages)->Iterations(1)->Unit(benchmark::kSecond);

// A press of a scale button. The argument is the scale in percent.
void ScaleSeenLive(benchmark::State& state) {
  auto& dialog = look::The<frmAddPicture>();
  dialog.picTemp->SetPicture(QPixmap::fromImage(pictures::LoadForPreview(TheAlbum().paths[0]).image));
  dialog.picTemp->resize(PhotoSize);
  AddScale = static_cast<double>(state.range(0)) / 100;
  for ([[maybe_unused]] auto iteration : state) look::The<frmAddPicture>().ShowScaledPreview();
}
BENCHMARK(ScaleSeenLive)->Arg(10)->Arg(25)->Arg(200)->Unit(benchmark::kMillisecond);

std::string FileOf(const QImage& image, const char* format) {
  QBuffer file;
  file.open(QBuffer::WriteOnly);
  if (!image.save(&file, format, 90)) std::abort();
  return file.data().toStdString();
}

// 48 megapixels: 0 as a camera's JPEG, with a small copy, 1 as PNG.
void WriteALargePhoto(const QString& path, std::int64_t kind) {
  const QImage large = Photo(1).scaled(2 * PhotoSize);
  QFile file(path);
  if (!file.open(QFile::WriteOnly)) std::abort();
  file.write(QByteArray::fromStdString(
      kind == 0 ? fixture::WithSmallCopy(FileOf(large, "JPG"), FileOf(large.scaled(160, 120), "JPG"))
                : FileOf(large, "PNG")));
}

// Add Picture: milliseconds to its window, to its small copy and to the picture in it, and the longest that
// the window was deaf in between.
void AddALargePhoto(benchmark::State& state) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("large"));
  WriteALargePhoto(path, state.range(0));
  QDir(folder.path()).mkdir(QStringLiteral("frames"));
  platform::SetProgramFolder(QFile::encodeName(folder.path()).toStdString());
  auto& dialog = look::The<frmAddPicture>();
  double window = 0, copy = 0, picture = 0, deaf = 0;
  for ([[maybe_unused]] auto iteration : state) {
    LayOut({}, 1);
    window = copy = deaf = 0;
    QElapsedTimer timer;
    double last = 0;
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, [&] {
      const double now = static_cast<double>(timer.nsecsElapsed()) / 1e6;
      if (!dialog.isVisible()) return;
      if (window == 0) window = last = now;
      deaf = std::max(deaf, now - std::exchange(last, now));
      if (copy == 0 && !dialog.picTemp->Picture().isNull()) copy = now;
      if (!dialog.cmdOK->isEnabled()) return;
      picture = now;
      dialog.CloseBox();
    });
    turns.start(0);
    timer.start();
    dialog.InsertPicture(QFile::encodeName(path).toStdString());
  }
  state.counters["window_ms"] = window;
  state.counters["copy_ms"] = copy;
  state.counters["picture_ms"] = picture;
  state.counters["deaf_ms"] = deaf;
}
BENCHMARK(AddALargePhoto)->Arg(0)->Arg(1)->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace
