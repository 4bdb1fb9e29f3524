#include "editor/EmoticonPicture.h"

#include <QtCore/QCryptographicHash>

#include "pictures/decoding/PictureFile.h"
#include "platform/Failure.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"

namespace {

// Below the folder of the plain pictures: the sharper ones under the same names, and of which bytes they are,
// as the command md5sum tells it.
constexpr char Sharper[] = "48/";
constexpr char Sums[] = "48/md5sums";
constexpr std::uint64_t MostBytes = 1 << 20;

std::string Sum(const std::string& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex().toStdString();
}

// A person may have put another picture there under the old name.
bool HasSharper(const std::string& fileName) try {
  const std::string line =
      Sum(platform::ReadFile(EmoticonFolder() + "/" + fileName, MostBytes)) + "  " + fileName + "\n";
  return platform::ReadFile(EmoticonFolder() + "/" + Sums, MostBytes).find(line) != std::string::npos;
} catch (const platform::Failure&) {
  return false;
}

}  // namespace

std::string EmoticonFolder() {
  return platform::ProgramFolder() + "/emoticons";
}

QImage LoadEmoticonPicture(const std::string& fileName, QSize most) try {
  return pictures::LoadUpTo(EmoticonFolder() + "/" + fileName, most);
} catch (const platform::Failure&) {
  return {};
}

QImage AsSharpAs(double devicePixelRatio, const std::string& fileName, const QImage& plain) {
  if (devicePixelRatio <= 1 || plain.isNull() || !HasSharper(fileName)) return plain;
  QImage sharp = LoadEmoticonPicture(std::string(Sharper).append(fileName));
  if (sharp.size() != 2 * plain.size()) return plain;
  sharp.setDevicePixelRatio(2);
  return sharp;
}
