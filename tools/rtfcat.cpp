// Shows what the program makes of an RTF document.
//
//   rtfcat --text FILE      its plain text, in UTF-8
//   rtfcat --rewrite FILE   the RTF that a page with its content is stored as
//   rtfcat --box FILE       the same after a way through the text box's document; needs no display
//
// Status 1 when the file cannot be read, 2 when it is called in another way.
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextDocument>

#include "richtext/document/PlainText.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"
#include "richtext/textdocument/TextDocument.h"

namespace {

std::optional<std::string> ReadWhole(const char* path) {
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) return std::nullopt;
  std::string bytes;
  std::array<char, 65536> piece;
  for (std::size_t got = 1; got > 0; bytes.append(piece.data(), got))
    got = std::fread(piece.data(), 1, piece.size(), file);
  const bool whole = std::ferror(file) == 0;
  const int reason = errno;
  std::fclose(file);
  errno = reason;
  if (!whole) return std::nullopt;
  return bytes;
}

std::string ThroughBox(const std::string& rtf) {
  char name[] = "rtfcat";
  char option[] = "-platform";
  char platform[] = "offscreen";
  char* arguments[] = {name, option, platform, nullptr};
  int count = 3;
  // The toolkit tells of what it misses in the desktop, of which nothing is needed here.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  const QGuiApplication application(count, arguments);
  QTextDocument box;
  richtext::FillDocument(richtext::ReadRtf(rtf), box);
  return richtext::WriteRtf(richtext::TakeDocument(box));
}

std::optional<std::string> Converted(std::string_view way, const std::string& rtf) {
  using namespace richtext;
  if (way == "--text") return PlainText(ReadRtf(rtf));
  if (way == "--rewrite") return WriteRtf(ReadRtf(rtf));
  if (way == "--box") return ThroughBox(rtf);
  return std::nullopt;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view way = count == 3 ? arguments[1] : "";
  if (way != "--text" && way != "--rewrite" && way != "--box") {
    std::fprintf(stderr, "usage: rtfcat --text|--rewrite|--box FILE\n");
    return 2;
  }
  const std::optional<std::string> rtf = ReadWhole(arguments[2]);
  if (!rtf) {
    std::fprintf(stderr, "rtfcat: cannot read %s: %s\n", arguments[2], std::strerror(errno));
    return 1;
  }
  const std::string converted = *Converted(way, *rtf);
  std::fwrite(converted.data(), 1, converted.size(), stdout);
  return 0;
}
