#include "output/WebText.h"

#include <QtCore/QFile>

#include "platform/CodePage.h"
#include "platform/Dates.h"

namespace {

bool StartsPair(std::u16string_view text) {
  return text.size() > 1 && QChar::isHighSurrogate(text[0]) && QChar::isLowSurrogate(text[1]);
}

// The first character of the text, which is not empty.
char32_t FirstOf(std::u16string_view text) {
  if (StartsPair(text)) return QChar::surrogateToUcs4(text[0], text[1]);
  return QChar::isSurrogate(text[0]) ? char32_t{QChar::ReplacementCharacter} : char32_t{text[0]};
}

std::u16string_view View(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

}  // namespace

std::string WebText(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    if (const int byte = platform::CodePageByte(text[0]); byte >= 0)
      bytes += static_cast<char>(byte);
    else
      bytes += "&#" + std::to_string(static_cast<unsigned>(FirstOf(text))) + ";";
    text.remove_prefix(StartsPair(text) ? 2 : 1);
  }
  return bytes;
}

std::string WebFileName(std::string_view name) {
  return WebText(View(QFile::decodeName(QByteArray(name.data(), static_cast<qsizetype>(name.size())))));
}

std::string WebLongDate(double date) {
  return WebText(View(platform::LongDate(date)));
}
