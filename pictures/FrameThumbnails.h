// What the frames look like, in the list of frames.
#pragma once

#include <string>
#include <vector>

#include <QtCore/QTimer>
#include <QtWidgets/QListWidget>

// Gives each row of a list its frame in small, over a pale sky. They are drawn one each time the event loop
// turns while the list is seen, so that it comes at once.
class FrameThumbnails {
 public:
  explicit FrameThumbnails(QListWidget& list);

  // One path a row, in its order: empty for the sky alone, which stands for what is no picture, too. Until
  // its own is drawn a row has the sky.
  void Show(std::vector<std::string> paths);

 private:
  void DrawNext();

  QListWidget& list_;
  std::vector<std::string> paths_;
  int next_ = 0;
  QTimer turns_;
};
