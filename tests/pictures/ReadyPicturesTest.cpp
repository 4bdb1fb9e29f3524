// What is kept of the pages' pictures, and what is decoded ahead. Run with the thread sanitizer, too.
#include <QtTest/QTest>

#include "pictures/decoding/ReadyPictures.h"
#include "tests/support/Fixtures.h"

namespace {

using pictures::WantedPicture;

class ReadyPictures : public fixture::Desk {
 protected:
  // The path of a file in one colour.
  std::string Paint(const char* name, QColor color) {
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(color);
    EXPECT_TRUE(image.save(QString::fromStdString(folder.PathOf(name)), "PNG"));
    return folder.PathOf(name);
  }
  QRgb CornerOf(const WantedPicture& wanted) { return ready.Get(wanted).pixel(0, 0); }

  pictures::ReadyPictures ready;
};

TEST_F(ReadyPictures, ComeBackUndecodedAsLongAsTheirFileIsTheSame) {
  const WantedPicture photo{Paint("photo.png", Qt::red), {30, 20}};
  ready.Visit({photo});
  const qint64 first = ready.Get(photo).cacheKey();
  ready.Visit({});
  EXPECT_EQ(ready.Bytes(), 30 * 20 * 3 + 20 * 2U) << "RGB in rows of whole words";
  ready.Visit({photo});
  EXPECT_EQ(ready.Get(photo).cacheKey(), first);
  EXPECT_EQ(ready.Bytes(), 0U) << "what is on the screen does not count";
  EXPECT_NE(ready.Get({photo.path, {30, 20}, 2}).cacheKey(), first) << "in another size";
  Paint("photo.png", Qt::blue);
  EXPECT_EQ(CornerOf(photo), QColor(Qt::blue).rgb());
  folder.Write("photo.png", "no picture");
  ready.Visit({photo});
  fixture::ExpectFailure(platform::FailureKind::InvalidPicture, "photo.png", [&] { CornerOf(photo); });
  ready.Forget();
  ready.Visit({});
  EXPECT_EQ(ready.Bytes(), 0U);
}

TEST_F(ReadyPictures, TakeNoMoreThanTheirBoundAndThoseSeenLastStay) {
  const std::string path = Paint("photo.png", Qt::red);
  const auto page = [&](int i) { return WantedPicture{path, {2400, 1000 + i}}; };  // some 7 MB each
  qint64 last = 0;
  for (int i = 0; i < 20; ++i) {
    ready.Visit({page(i)});
    last = ready.Get(page(i)).cacheKey();
    EXPECT_LE(ready.Bytes(), pictures::KeptPictures::MostBytes);
  }
  ready.Visit({});
  EXPECT_GT(ready.Bytes(), pictures::KeptPictures::MostBytes - 8'000'000);
  ready.Visit({page(19)});
  EXPECT_EQ(ready.Get(page(19)).cacheKey(), last);
}

TEST_F(ReadyPictures, AreDecodedAheadAndNoPageThatWasSeenGoesForIt) {
  const std::string path = Paint("photo.png", Qt::red);
  folder.Write("broken.png", "no picture");
  const WantedPicture next{path, {30, 20}}, seen{path, {3000, 3000}}, shown{path, {40, 40}};
  const WantedPicture large{path, {4000, 3000}}, broken{folder.PathOf("broken.png"), {30, 20}};
  ready.Visit({seen});
  ready.Visit({shown});
  const std::size_t before = ready.Bytes();
  ready.Prepare({broken, large, next, shown});
  ASSERT_TRUE(QTest::qWaitFor([&] { return ready.Bytes() > before; }, 60000))
      << "it yields to everything else";
  EXPECT_EQ(ready.Bytes(), before + 30 * 20 * 3 + 20 * 2) << "the small one alone has room";
  ready.Prepare({{path, {50, 50}}});
  ready.Visit({next});
  const std::size_t kept = ready.Bytes();
  QTest::qWait(50);
  EXPECT_EQ(ready.Bytes(), kept) << "nobody waits for what was prepared before the turn";
  ready.Prepare({large});
}  // and the end breaks it off

TEST_F(ReadyPictures, OfOnePageAreAllDecodedWhateverIsAmongThem) {
  folder.Write("broken.png", "no picture");
  std::vector<WantedPicture> page{{folder.PathOf("broken.png"), {30, 20}},
                                  {folder.PathOf("gone.png"), {30, 20}}};
  const QColor colors[] = {Qt::red, Qt::green, Qt::blue, Qt::white, Qt::black};
  for (const QColor& color : colors) page.push_back({Paint(color.name().toUtf8(), color), {30, 20}});
  ready.Visit(page);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(CornerOf(page[i + 2]), colors[i].rgb());
}

}  // namespace
