#include "platform/RunningInstance.h"

#include <cstdlib>
#include <sys/socket.h>
#include <unistd.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "platform/Files.h"
#include "platform/X11.h"

namespace platform {
namespace {

// A second start says one line: this word, the timestamp, and the startup id in hexadecimal digits. The first
// one answers with a line of its own when its window is in front.
constexpr char request[] = "activate";
constexpr char done[] = "done\n";
constexpr qint64 longestRequest = 4096;
constexpr int patience = 2000;  // milliseconds

// One name for a folder, however it was reached.
QByteArray CanonicalProgramFolder() {
  const std::string folder = ProgramFolder();
  const std::unique_ptr<char, void (*)(void*)> canonical(realpath(folder.c_str(), nullptr), std::free);
  return canonical ? QByteArray(canonical.get()) : QByteArray::fromStdString(folder);
}

QString SocketName() {
  const QByteArray hash = QCryptographicHash::hash(CanonicalProgramFolder(), QCryptographicHash::Sha256);
  return QStringLiteral("thornquill-%1-%2").arg(geteuid()).arg(QString::fromLatin1(hash.left(16).toHex()));
}

// Names in the abstract namespace can be taken by anyone, so both sides look who the other one is.
bool IsOurs(const QLocalSocket& socket) {
  ucred peer{};
  socklen_t size = sizeof peer;
  const auto descriptor = static_cast<int>(socket.socketDescriptor());
  return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

QByteArray RequestFor(const ActivationToken& token) {
  return QByteArray(request) + ' ' + QByteArray::number(token.timestamp) + ' ' + token.startupId.toHex() +
         '\n';
}

// False for a line that no start of this program sends.
bool ReadRequest(const QByteArray& line, ActivationToken& token) {
  const QList<QByteArray> words = line.trimmed().split(' ');
  if (words.size() < 2 || words.size() > 3 || words[0] != request) return false;
  bool isNumber = false;
  token.timestamp = words[1].toUInt(&isNumber);
  if (words.size() == 3) token.startupId = QByteArray::fromHex(words[2]);
  return isNumber;
}

// A start from a terminal has no startup id, but it is the user's action all the same, and it is now.
ActivationToken WithTimestamp(ActivationToken token, xcb_connection_t* x11) {
  if (token.timestamp == 0 && x11) token.timestamp = X11Time(x11);
  return token;
}

bool Ask(QLocalSocket& socket, const ActivationToken& token) {
  const QDeadlineTimer deadline(patience);
  socket.write(RequestFor(token));
  while (!socket.canReadLine()) {
    const bool tooLong = socket.bytesAvailable() > qint64{sizeof done};
    if (tooLong || !socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) return false;
  }
  return socket.readLine() == done;
}

}  // namespace

RunningInstance::RunningInstance(QObject* parent)
    : QObject(parent), server_(std::make_unique<QLocalServer>()) {
  server_->setSocketOptions(QLocalServer::AbstractNamespaceOption);
  connect(server_.get(), &QLocalServer::newConnection, this, &RunningInstance::Answer);
  server_->listen(SocketName());
}

RunningInstance::~RunningInstance() = default;

bool RunningInstance::IsFirst() const {
  return server_->isListening();
}

QString RunningInstance::Name() const {
  return server_->serverName();
}

bool RunningInstance::HandOver(const ActivationToken& token) {
  QLocalSocket socket;
  socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  socket.connectToServer(SocketName());
  if (!socket.waitForConnected(patience) || !IsOurs(socket)) return false;
  const X11Connection x11 = ConnectToX11();
  if (!Ask(socket, WithTimestamp(token, x11.get()))) return false;
  // No window of this start will ever come up to tell the desktop so.
  if (x11 && !token.startupId.isEmpty()) EndStartupSequence(x11.get(), token.startupId.toStdString());
  return true;
}

void RunningInstance::Answer() {
  while (QLocalSocket* socket = server_->nextPendingConnection()) {
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] { Hear(*socket); });
    QTimer::singleShot(patience, socket, [socket] { socket->abort(); });
    socket->setReadBufferSize(longestRequest);
    if (IsOurs(*socket))
      Hear(*socket);
    else
      socket->abort();
  }
}

void RunningInstance::Hear(QLocalSocket& socket) {
  if (!socket.canReadLine()) {
    if (socket.bytesAvailable() >= longestRequest) socket.abort();
    return;
  }
  ActivationToken token;
  if (!ReadRequest(socket.readLine(longestRequest), token)) return socket.abort();
  const QPointer<QLocalSocket> asking = &socket;  // the listeners may run events, and its patience may end
  Q_EMIT ActivationRequested(token);
  if (!asking) return;
  asking->write(done);
  asking->disconnectFromServer();
}

}  // namespace platform
