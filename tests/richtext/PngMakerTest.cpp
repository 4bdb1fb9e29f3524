// The threads that make the files of large bitmaps. Run with the thread sanitizer, too.
#include <chrono>
#include <ctime>
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

template <class Work>
std::clock_t WorkOf(Work work) {
  const std::clock_t before = std::clock();
  work();
  return std::clock() - before;
}

TEST(PngMaker, IsStoppedInSilenceWhenNobodyWantsTheFile) {
  const QImage image = Noise({2500, 2000});
  std::string bytes;
  const auto whole = WorkOf([&] { bytes = SmallPng(image); });
  testing::internal::CaptureStderr();
  const auto stopped = WorkOf([&] { const PngMaker unwanted(image); });
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_LT(stopped, whole * 4 / 5);
  const PngMaker wanted(image);
  EXPECT_EQ(wanted.Bytes() == bytes, true);
  EXPECT_TRUE(wanted.IsDone());
}

TEST(PngMaker, ADocumentWaitsForAllOfThem) {
  QTextDocument document;
  const QImage large = Noise({2500, 2000}), small = Noise({1100, 1000});
  const auto slow = KeepImage(large, {}, document);
  KeepImage(small, {}, document);
  EXPECT_FALSE(AreFilesMade(document));
  const auto making =
      WorkOf([&] { EXPECT_TRUE(QTest::qWaitFor([&] { return AreFilesMade(document); }, 60'000)); });
  const auto waiting = WorkOf([&] { KeptPicture(slow, document); });
  EXPECT_LT(2 * waiting, making);
}

}  // namespace
}  // namespace richtext
