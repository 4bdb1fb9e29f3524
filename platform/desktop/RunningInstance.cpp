#include "platform/desktop/RunningInstance.h"

#include <algorithm>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "platform/desktop/X11.h"
#include "platform/files/Files.h"

namespace platform {
namespace {

using std::chrono::milliseconds;

// A second start says one line: this word, the timestamp, and the startup id in hexadecimal digits. The first
// one answers with a line of its own: its window is in front, or only asks for attention.
constexpr char activate[] = "activate";
constexpr char done[] = "done\n";
constexpr char announced[] = "announced\n";
constexpr qint64 longestRequest = 4096;
constexpr milliseconds longestTalk{2000};
constexpr milliseconds patienceWithStrangers{2000};
constexpr milliseconds untilTheNextTry{20};
constexpr milliseconds untilTheNameIsTriedAgain{500};

// One name for a folder, however it was reached and whoever asks.
QString SocketName() {
  struct stat folder {};
  stat(ProgramFolder().c_str(), &folder);
  return QStringLiteral("thornquill-%1-%2").arg(folder.st_dev, 0, 16).arg(folder.st_ino, 0, 16);
}

// Names in the abstract namespace can be taken by anyone, so both sides look who the other one is.
bool IsOurs(const QLocalSocket& socket) {
  ucred peer{};
  socklen_t size = sizeof peer;
  const auto descriptor = static_cast<int>(socket.socketDescriptor());
  return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

QByteArray RequestFor(const ActivationToken& token) {
  return QByteArray(activate) + ' ' + QByteArray::number(token.timestamp) + ' ' + token.startupId.toHex() +
         '\n';
}

// False for a line that no start of this program sends.
bool ReadRequest(const QByteArray& line, ActivationToken& token) {
  const QList<QByteArray> words = line.trimmed().split(' ');
  if (words.size() < 2 || words.size() > 3 || words[0] != activate) return false;
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

// An order to end is heard while this start waits.
void RunEvents(milliseconds time) {
  QEventLoop events;
  QTimer::singleShot(time, &events, &QEventLoop::quit);
  events.exec();
}

// A start that shows nothing yet has nothing to bring forward.
bool IsInFront() {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  const bool shows =
      std::any_of(windows.begin(), windows.end(), [](const QWindow* each) { return each->isVisible(); });
  return !shows || QGuiApplication::focusWindow();
}

// What a second start has to say to the first one. It speaks but once to one that is busy, and anew to one
// that was not there or went away.
class Caller {
 public:
  Caller(QString name, QByteArray request) : name_(std::move(name)), request_(std::move(request)) {
    socket_.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket_.setReadBufferSize(longestRequest);
  }
  // Never waits: to be called again and again until it is so.
  bool IsAnswered();
  bool IsInFront() const { return answer_ == done; }
  bool MetAStranger() const { return metAStranger_; }

 private:
  void Connect();
  void Speak();

  const QString name_;
  const QByteArray request_;
  QLocalSocket socket_;
  QByteArray answer_;
  bool hasSpoken_ = false;
  bool metAStranger_ = false;
};

bool Caller::IsAnswered() {
  if (socket_.canReadLine()) answer_ = socket_.readLine();  // the other end may be closed already
  if (answer_ == done || answer_ == announced) return true;
  if (socket_.state() == QLocalSocket::UnconnectedState) Connect();
  if (socket_.state() == QLocalSocket::ConnectedState && !hasSpoken_) Speak();
  return false;
}

void Caller::Connect() {
  hasSpoken_ = false;
  socket_.abort();
  socket_.connectToServer(name_);
}

void Caller::Speak() {
  metAStranger_ = !IsOurs(socket_);
  if (metAStranger_) return socket_.abort();
  hasSpoken_ = socket_.write(request_) == request_.size();
}

}  // namespace

RunningInstance::RunningInstance(milliseconds patience)
    : patience_(patience),
      lock_(ProgramFolder()),
      name_(SocketName()),
      server_(std::make_unique<QLocalServer>()) {
  server_->setSocketOptions(QLocalServer::AbstractNamespaceOption);
  connect(server_.get(), &QLocalServer::newConnection, this, &RunningInstance::Answer);
  BecomeFirst();
}

RunningInstance::~RunningInstance() = default;

bool RunningInstance::BecomeFirst() {
  switch (lock_.Take()) {
    case FolderLock::Reply::Ours:
      first_ = true;
      Listen();
      break;
    case FolderLock::Reply::NoLocks:
      first_ = server_->listen(name_) || server_->serverError() != QAbstractSocket::AddressInUseError;
      break;
    case FolderLock::Reply::Taken:
      break;
  }
  return first_;
}

// The name may be a stranger's, or for a moment still that of the former first one.
void RunningInstance::Listen() {
  if (!server_->listen(name_)) QTimer::singleShot(untilTheNameIsTriedAgain, this, &RunningInstance::Listen);
}

Meeting RunningInstance::HandOver(const ActivationToken& token) {
  const X11Connection x11 = ConnectToX11();
  Caller caller(name_, RequestFor(WithTimestamp(token, x11.get())));
  QElapsedTimer waited;
  for (waited.start(); !caller.IsAnswered(); RunEvents(untilTheNextTry)) {
    if (BecomeFirst()) return Meeting::IsFirst;
    const bool stranger = caller.MetAStranger();
    const milliseconds patience = stranger ? std::min(patience_, patienceWithStrangers) : patience_;
    if (milliseconds(waited.elapsed()) > patience) return stranger ? Meeting::AnotherUser : Meeting::Silent;
  }
  // No window of this start will ever come up to tell the desktop so.
  if (x11 && !token.startupId.isEmpty()) EndStartupSequence(x11.get(), token.startupId.toStdString());
  return caller.IsInFront() ? Meeting::HandedOver : Meeting::Announced;
}

void RunningInstance::Answer() {
  while (QLocalSocket* socket = server_->nextPendingConnection()) {
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] { Hear(*socket); });
    QTimer::singleShot(longestTalk, socket, [socket] { socket->abort(); });
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
  if (asking) TellHowItWent(*asking);
}

// Behind what came before the request: one that is being told to end must not send the new one away.
void RunningInstance::TellHowItWent(QLocalSocket& asking) {
  auto* look = new QTimer(&asking);
  QElapsedTimer sinceAsked;
  sinceAsked.start();
  connect(look, &QTimer::timeout, &asking, [&asking, look, sinceAsked] {
    const bool isInFront = IsInFront();
    look->start(untilTheNextTry);
    if (!isInFront && milliseconds(sinceAsked.elapsed()) < Grace) return;
    look->stop();
    asking.write(isInFront ? done : announced);
    asking.disconnectFromServer();
  });
  look->start(0);
}

}  // namespace platform
