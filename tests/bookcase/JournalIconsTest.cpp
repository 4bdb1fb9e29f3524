#include <gtest/gtest.h>

#include <QtCore/QMap>

#include "bookcase/JournalIcons.h"

namespace {

// The picture of the list at a scaling of 200 percent.
QByteArray Pixels(int index) {
  const QImage picture = JournalIcon(index).pixmap(QSize(32, 32), 2).toImage();
  EXPECT_EQ(picture.size(), QSize(64, 64));
  return {reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()};
}

TEST(JournalIcons, AreAllDrawnAndNamedAndNoTwoAreAlike) {
  QMap<QByteArray, int> pictures;
  QMap<QString, int> names;
  for (int index = 1; index <= JournalIconCount; ++index) {
    pictures[Pixels(index)] = index;
    names[JournalIconName(index)] = index;
  }
  EXPECT_EQ(pictures.size(), JournalIconCount);
  EXPECT_EQ(names.size(), JournalIconCount);
  EXPECT_EQ(names[QStringLiteral("blue book")], 1);
  for (const int outside : {-1, 0, JournalIconCount + 1}) {
    EXPECT_EQ(JournalIcon(outside).cacheKey(), JournalIcon(1).cacheKey());
    EXPECT_EQ(JournalIconName(outside), JournalIconName(1));
  }
}

}  // namespace
