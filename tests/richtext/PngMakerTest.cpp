// The threads that make the files of large bitmaps. Run with the thread sanitizer, too.
#include <atomic>
#include <future>
#include <random>

#include <QtTest/QTest>

#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/PngMaker.h"
#include "richtext/textdocument/SmallPng.h"
#include "tests/support/Toolkit.h"

namespace richtext {
namespace {

QImage Noise(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  std::mt19937 random(5);
  auto* pixels = reinterpret_cast<QRgb*>(image.bits());
  std::generate(pixels, pixels + size.width() * size.height(), [&] { return 0xff000000 | random(); });
  return image;
}

TEST(PngMaker, IsStoppedInSilenceWhenNobodyWantsTheFile) {
  const QImage image = Noise({2500, 2000});
  const std::string whole = SmallPng(image);
  std::atomic<bool> isStopped = false;
  const auto stoppedAfter = [&](unsigned long milliseconds) {
    isStopped = milliseconds == 0;
    auto made = std::async(std::launch::async, [&] { return SmallPng(image, &isStopped); });
    QThread::msleep(milliseconds);
    isStopped = true;
    return made.get();
  };
  testing::internal::CaptureStderr();
  EXPECT_EQ(stoppedAfter(0), "");
  for (const unsigned long milliseconds : {1UL, 20UL, 60UL}) {
    const std::string made = stoppedAfter(milliseconds);
    EXPECT_TRUE(made.empty() || made == whole) << milliseconds;
  }
  { const PngMaker unwanted(image); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  const PngMaker wanted(image);
  EXPECT_TRUE(wanted.Bytes() == whole);
  EXPECT_TRUE(wanted.IsDone());
}

TEST(PngMaker, ADocumentWaitsForAllOfThem) {
  QTextDocument document;
  const QImage large = Noise({2500, 2000}), small = Noise({1100, 1000});
  const auto slow = KeepImage(large, {}, document);
  const auto quick = KeepImage(small, {}, document);
  EXPECT_FALSE(AreFilesMade(document));
  EXPECT_TRUE(QTest::qWaitFor([&] { return AreFilesMade(document); }, 60'000));
  for (const auto& [format, image] : {std::pair(slow, large), std::pair(quick, small)})
    EXPECT_TRUE(KeptPicture(format, document).bytes == SmallPng(image));
}

}  // namespace
}  // namespace richtext
