#include "richtext/textdocument/SmallPng.h"

#include <cstring>

#include <QtCore/QBuffer>
#include <QtCore/QHash>
#include <QtGui/QImageWriter>

namespace richtext {
namespace {

constexpr int PaletteSize = 256;
constexpr qint64 MostPixelsOfSmall = 65'536;  // emoticons, icons, words of a screen
constexpr int Tight = 100;                    // as the toolkit counts
constexpr int Quick = 11;                     // the packer's first level

const QRgb* Line(const QImage& image, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

bool IsOpaque(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(Line(image, y)[x]) != 255) return false;
  return true;
}

// The colours with their numbers; empty when there are too many for a palette.
QHash<QRgb, int> Colors(const QImage& image) {
  QHash<QRgb, int> numbers;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QRgb color = Line(image, y)[x];
      if (!numbers.contains(color)) numbers.insert(color, static_cast<int>(numbers.size()));
      if (numbers.size() > PaletteSize) return {};
    }
  return numbers;
}

QImage WithPalette(const QImage& image, const QHash<QRgb, int>& numbers) {
  QImage made(image.size(), numbers.size() <= 2 ? QImage::Format_Mono : QImage::Format_Indexed8);
  QList<QRgb> table(numbers.size());
  for (auto entry = numbers.begin(); entry != numbers.end(); ++entry) table[entry.value()] = entry.key();
  made.setColorTable(table);
  made.fill(0);  // the bits behind the last pixel of a line go into the file as well
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      made.setPixel(x, y, static_cast<uint>(numbers.value(Line(image, y)[x])));
  return made;
}

// Takes what is written until it is told to stop. A write that failed would have the packer tell so on the
// standard error; so it is let go on, with pixels that are packed in no time.
class File : public QBuffer {
 public:
  // Of this image, whose pixels nobody else has.
  File(QImage& image, const std::atomic<bool>* stop)
      : pixels_(image.bits()), size_(static_cast<std::size_t>(image.sizeInBytes())), stop_(stop) {}

  bool IsWhole() const { return isWhole_; }

 protected:
  qint64 writeData(const char* bytes, qint64 size) override {
    if (isWhole_ && stop_ && *stop_) {
      isWhole_ = false;
      std::memset(pixels_, 0, size_);
    }
    return isWhole_ ? QBuffer::writeData(bytes, size) : size;
  }

 private:
  uchar* const pixels_;
  const std::size_t size_;
  const std::atomic<bool>* const stop_;
  bool isWhole_ = true;
};

int CompressionOf(const QImage& image) {
  return qint64{image.width()} * image.height() > MostPixelsOfSmall ? Quick : Tight;
}

// The image is the packer's own.
std::string Encoded(QImage& image, const std::atomic<bool>* stop) {
  File file(image, stop);
  QImageWriter writer(&file, "png");
  writer.setCompression(CompressionOf(image));
  return writer.write(image) && file.IsWhole() ? file.data().toStdString() : std::string();
}

// The same pixels without the image's texts and colour profile.
QImage Bare(const QImage& image, QImage::Format format) {
  const QImage pixels = image.convertToFormat(format);
  return QImage(pixels.constBits(), pixels.width(), pixels.height(), pixels.bytesPerLine(), format).copy();
}

}  // namespace

std::string SmallPng(const QImage& image, const std::atomic<bool>* stop) {
  if (image.isNull() || (stop && *stop)) return {};
  QImage full = Bare(image, QImage::Format_ARGB32);
  if (IsOpaque(full)) full = Bare(full, QImage::Format_RGB32);
  std::string smallest = Encoded(full, stop);
  if (const QHash<QRgb, int> colors = Colors(full); !smallest.empty() && !colors.isEmpty()) {
    QImage few = WithPalette(full, colors);
    const std::string mapped = Encoded(few, stop);
    if (mapped.size() < smallest.size()) smallest = mapped;
  }
  return smallest;
}

}  // namespace richtext
