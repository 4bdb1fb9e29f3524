// One running program per user and program folder.
//
// The first one listens on a local socket in the abstract namespace, so that no file is left behind. A second
// start connects, hands over the activation token that the desktop gave it, and leaves; the first one brings
// its window to the front with that token, as window managers that prevent focus stealing demand.
#pragma once

#include <functional>
#include <memory>

#include <QtCore/QObject>

class QLocalServer;
class QLocalSocket;

namespace platform {

// What the desktop hands to a program that a person started, so that its window may come to the front.
struct ActivationToken {
  QByteArray startupId;   // X11: DESKTOP_STARTUP_ID; Wayland: XDG_ACTIVATION_TOKEN. May be empty.
  quint32 timestamp = 0;  // X11: the server's time of the person's action, in milliseconds; 0 if unknown
};

class RunningInstance : public QObject {
  Q_OBJECT

 public:
  // Becomes the first instance when no other one holds the name. Call HandOver when it is not.
  explicit RunningInstance(QObject* parent = nullptr);
  ~RunningInstance() override;
  bool IsFirst() const;
  // The name of the first instance's socket; empty for any other.
  QString Name() const;

  // Tells the first instance to come to the front; false when it does not answer within two seconds.
  static bool HandOver(const ActivationToken& token);
  // The token that the desktop gave to this process: must be read before the application object takes it.
  static ActivationToken TokenOfThisStart();

 Q_SIGNALS:
  // Another start asks this instance to come to the front.
  void ActivationRequested(const platform::ActivationToken& token);

 private:
  void Answer();
  void Hear(QLocalSocket& socket);
  std::unique_ptr<QLocalServer> server_;
};

// Restores the window if it is minimised and brings it to the front on the token's behalf.
void BringToFront(class ::QWidget& window, const ActivationToken& token);

}  // namespace platform
