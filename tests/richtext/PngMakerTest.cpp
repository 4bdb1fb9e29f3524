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
  const auto stoppedAfter = [&](int milliseconds) {
    std::atomic<bool> stop = false;
    auto made = std::async(std::launch::async, [&] { return SmallPng(image, &stop); });
    QThread::msleep(static_cast<unsigned long>(milliseconds));
    stop = true;
    return made.get();
  };
  testing::internal::CaptureStderr();
  for (const int milliseconds : {0, 20, 60}) EXPECT_EQ(stoppedAfter(milliseconds), "") << milliseconds;
  { const PngMaker unwanted(image); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  const PngMaker wanted(image);
  EXPECT_TRUE(wanted.Bytes() == SmallPng(image));
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
