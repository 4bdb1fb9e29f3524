#include "output/PageLines.h"

#include "output/WebText.h"

std::string WebLines(QString text) {
  text.remove(QChar(QChar::ObjectReplacementCharacter)).replace(u'\n', QStringLiteral("\r\n"));
  return WebText(text.toStdU16String());
}
