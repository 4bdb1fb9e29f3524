#include "platform/CodePage.h"

#include <array>

namespace platform {
namespace {

// The characters of the bytes 80 to 9F hex. All other bytes are the characters of the same number.
constexpr std::array<char16_t, 32> middle = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t CharacterOf(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? middle[byte - 0x80] : byte;
}

}  // namespace

int CodePageByte(char16_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return character;
  for (std::size_t i = 0; i < middle.size(); ++i)
    if (middle[i] == character) return static_cast<int>(0x80 + i);
  return -1;
}

QString FromCodePage(std::string_view bytes) {
  QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
  for (std::size_t i = 0; i < bytes.size(); ++i)
    text[static_cast<qsizetype>(i)] = CharacterOf(static_cast<unsigned char>(bytes[i]));
  return text;
}

std::optional<std::string> ToCodePage(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar character : text) {
    const int byte = CodePageByte(character.unicode());
    if (byte < 0) return std::nullopt;
    bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

QString FirstForeignCharacter(const QString& text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (CodePageByte(text[i].unicode()) >= 0) continue;
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    return text.mid(i, pair ? 2 : 1);
  }
  return {};
}

}  // namespace platform
