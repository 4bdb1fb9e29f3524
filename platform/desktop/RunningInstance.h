// One running program to a program folder.
//
// The first one holds the lock of the folder from its start to its end, and no other one reads or writes the
// diary meanwhile. The first one also listens on a local socket in the abstract namespace, so that no file is
// left behind. A second start connects, hands over the activation token that the desktop gave it, and leaves;
// the first one brings its window to the front with that token, as window managers that prevent focus
// stealing demand. The socket decides nothing: anyone on the machine can take its name. Only where the disk
// knows no locks the first one is whoever has the name.
#pragma once

#include <chrono>
#include <memory>

#include <QtCore/QObject>

#include "platform/files/FolderLock.h"

class QLocalServer;
class QLocalSocket;

namespace platform {

// What the desktop hands to a program that a person started, so that its window may come to the front.
struct ActivationToken {
  QByteArray startupId;   // X11: DESKTOP_STARTUP_ID; Wayland: XDG_ACTIVATION_TOKEN. May be empty.
  quint32 timestamp = 0;  // X11: the server's time of the person's action, in milliseconds; 0 if unknown
};

// What came of a second start.
enum class Meeting {
  IsFirst,      // the other one is gone, and this one has its place
  HandedOver,   // the other one is in front
  Announced,    // the other one asks for attention: the desktop did not let it come to the front
  Silent,       // the other one does not answer
  AnotherUser,  // the folder is in use, and who has the socket's name belongs to another user
};

class RunningInstance : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds Patience{10'000};
  // So long a desktop may take to bring a window to the front.
  static constexpr std::chrono::milliseconds Grace{1'000};

  // Becomes the first instance when no other one holds the program's folder, which it keeps open. Call
  // HandOver when it is not.
  explicit RunningInstance(std::chrono::milliseconds patience = Patience);
  ~RunningInstance() override;
  bool IsFirst() const { return first_; }
  // The name of the first instance's socket, whichever that is.
  const QString& Name() const { return name_; }

  // Tells the first instance to come to the front, and waits for its answer as long as the patience lasts, at
  // most two seconds for that of another user. Events run meanwhile. When the first instance ends, this one
  // takes its place.
  Meeting HandOver(const ActivationToken& token);
  // The token that the desktop gave to this process: must be read before the application object takes it.
  static ActivationToken TokenOfThisStart();

 Q_SIGNALS:
  // Another start asks this instance to come to the front. What came of it is told when a window of this one
  // has the keyboard, or has not got it after a while.
  void ActivationRequested(const platform::ActivationToken& token);

 private:
  bool BecomeFirst();
  void Listen();
  void Answer();
  void Hear(QLocalSocket& socket);
  void TellHowItWent(QLocalSocket& asking);

  const std::chrono::milliseconds patience_;
  FolderLock lock_;
  const QString name_;
  std::unique_ptr<QLocalServer> server_;
  bool first_ = false;
};

// Restores the window if it is minimised and brings it to the front on the token's behalf. Where the desktop
// does not let it, the window soon asks for attention.
void BringToFront(class ::QWidget& window, const ActivationToken& token);

}  // namespace platform
