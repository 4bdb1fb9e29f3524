// The application object, which is the one place that a failure reaches when nobody guards it.
#pragma once

#include <functional>
#include <string>

#include <QtWidgets/QApplication>

namespace platform {

class Application : public QApplication {
 public:
  // A private diary leaves no trace outside its folder: from here on the toolkit keeps no settings, and a
  // crash no image of the memory.
  Application(int& argc, char** argv);

  // What is to be stored before the program ends on a failure; it may itself fail, which is ignored.
  void SetLastWill(std::function<void()> lastWill) { lastWill_ = std::move(lastWill); }

  // Delivers an event; a failure that comes out of a handler ends in DieOf.
  bool notify(QObject* receiver, QEvent* event) override;

  // Shows the failure's text in a box (stop icon), carries out the last will once and ends the process.
  void DieOf(const std::string& text);
  // True from the failure to the end: its box is up, or the last will is being carried out.
  bool IsDying() const { return dying_; }

 private:
  std::function<void()> lastWill_;
  bool dying_ = false;
};

}  // namespace platform
