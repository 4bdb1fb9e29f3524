#include "platform/desktop/RunUrl.h"

#include <utility>

#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

namespace platform {
namespace {

UrlRunner& Runner() {
  static UrlRunner runner;
  return runner;
}

// From the bytes themselves, since not every path decodes.
std::string UrlOf(const std::string& address) {
  if (address.empty() || address[0] != '/') return address;
  const auto path = QByteArray::fromRawData(address.data(), static_cast<qsizetype>(address.size()));
  return "file://" + path.toPercentEncoding("/").toStdString();
}

void RunOnTheDesktop(const std::string& url) {
  QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(url)));
}

}  // namespace

void RunUrl(const std::string& address) {
  const UrlRunner runner = Runner();
  runner ? runner(UrlOf(address)) : RunOnTheDesktop(UrlOf(address));
}

UrlRunner SetUrlRunner(UrlRunner runner) {
  return std::exchange(Runner(), std::move(runner));
}

}  // namespace platform
