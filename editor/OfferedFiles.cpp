#include "editor/OfferedFiles.h"

#include <algorithm>
#include <iterator>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>

namespace {

// A file manager's own: a first line that says what is to be done, and the addresses.
const QLatin1String CopiedFiles("x-special/gnome-copied-files");

// What goes into a page as it is.
const QLatin1String ContentNames[] = {QLatin1String("text/html"), QLatin1String("text/rtf"),
                                      QLatin1String("application/rtf"), QLatin1String("Rich Text Format")};

QList<QUrl> CopiedAddresses(const QMimeData& offered) {
  QList<QUrl> addresses;
  for (const QByteArray& line : offered.data(CopiedFiles).split('\n').mid(1))
    if (!line.trimmed().isEmpty()) addresses << QUrl::fromEncoded(line.trimmed());
  return addresses;
}

bool IsContent(const QMimeData& offered) {
  return offered.hasImage() || std::any_of(std::begin(ContentNames), std::end(ContentNames),
                                           [&](QLatin1String name) { return offered.hasFormat(name); });
}

bool IsOfTheWeb(const QUrl& address) {
  return address.scheme() == u"http" || address.scheme() == u"https";
}

// A link comes with its text.
bool AreLinks(const QList<QUrl>& addresses, const QMimeData& offered) {
  return offered.hasFormat(QStringLiteral("text/plain")) &&
         std::all_of(addresses.begin(), addresses.end(), IsOfTheWeb);
}

OfferedFile FileAt(const QUrl& address) {
  if (!address.isLocalFile()) return {address.toString().toStdString(), false};
  const QByteArray path = address.path(QUrl::FullyEncoded).toLatin1();
  return {QByteArray::fromPercentEncoding(path).toStdString(), true};
}

}  // namespace

std::vector<OfferedFile> OfferedFiles(const QMimeData& offered) {
  QList<QUrl> addresses = CopiedAddresses(offered);
  if (addresses.isEmpty()) {
    if (IsContent(offered)) return {};
    addresses = offered.urls();
    if (AreLinks(addresses, offered)) return {};
  }
  std::vector<OfferedFile> files;
  std::transform(addresses.begin(), addresses.end(), std::back_inserter(files), &FileAt);
  return files;
}
