// A picture file that is open, and the toolkit's reader over it.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtGui/QImageReader>

#include "platform/files/Identity.h"
#include "platform/files/InputFile.h"

namespace pictures {

// The largest picture that is decoded: what the largest cameras take.
inline constexpr std::int64_t MostPixels = 200'000'000;

// Ends where it was read to, once nobody wants it any more. That is an end and no failure: a reader of a
// format may reckon with the failure's number of bytes.
class DroppableFile : public QFile {
 public:
  explicit DroppableFile(const std::atomic<bool>* isDropped) : isDropped_(isDropped) {}

 protected:
  qint64 readData(char* data, qint64 most) override {
    return isDropped_ && *isDropped_ ? 0 : QFile::readData(data, most);
  }

 private:
  const std::atomic<bool>* isDropped_;
};

// The kind of picture is told by the bytes, not by the name. A drawing that names other files is read without
// them: to look at a picture opens no second one.
class PictureSource {
 public:
  // Throws platform::Failure with a sentence that names the file: gone, no ordinary file, empty, no picture,
  // or larger than MostPixels. Does not block on a pipe.
  explicit PictureSource(const std::string& path, const std::atomic<bool>* isDropped = nullptr);

  // Whether the mark turns the picture by a quarter, so that its stored width is its upright height.
  bool IsTurned() const { return reader.transformation() & QImageIOHandler::TransformationRotate90; }

  // Invalid for a format that does not tell before it is decoded.
  QSize UprightSize() const { return IsTurned() ? reader.size().transposed() : reader.size(); }

  // Never null. In 8 bits, about as large as `stored`, the size before a mark is obeyed, where the format
  // allows it; as large as it is where that is invalid. Throws platform::Failure (InvalidPicture).
  QImage Decode(QSize stored = {});

  platform::Identity Identity() const { return platform::IdentityOf(file_.entry()); }

  QImageReader reader;

 private:
  void ReadTheDrawingAlone();
  void CheckSize(QSize size) const;

  std::string path_;
  platform::InputFile file_;
  DroppableFile device_;
  QBuffer drawing_;
};

}  // namespace pictures
