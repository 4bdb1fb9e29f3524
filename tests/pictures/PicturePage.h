// Page 2 of an open journal, and pictures to lay on it.
#pragma once

#include "pictures/PictureSlots.h"
#include "tests/support/Windows.h"

class PicturePage : public fixture::Windows {
 protected:
  PicturePage() {
    Journals.resize(2);
    JournalCount = Staged().CurrentJournal = 1;
    Journals[1].Name = "Summer";
    Journals[1].FileName = "j1";
    Journals[1].PaperColor = 0x80FFFF;
    Staged().CurrentPage = 2;
    page.setGeometry(100, 120, 565, 648);
  }
  // The path of a picture in one colour but for its left edge.
  std::string Image(const char* name, QColor color, QColor edge) {
    QImage image(640, 480, QImage::Format_ARGB32);
    image.fill(color);
    for (int i = 0; i < 20 * 480; ++i) image.setPixelColor(i % 20, i / 20, edge);
    EXPECT_TRUE(image.save(QString::fromStdString(folder.PathOf(name)), "PNG"));
    return folder.PathOf(name);
  }

  QWidget page;
  PictureSlots* pictures = new PictureSlots(&page);
  const std::string photo = Image("photo.png", Qt::blue, Qt::blue);
};
