// The one door through which every message box goes.
#pragma once

#include <functional>
#include <string>

namespace platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class BoxIcon { None, Stop, Question };
enum class Answer { Ok, Cancel, Yes, No };

struct Message {
  std::string text;  // UTF-8, shown as plain text
  Buttons buttons = Buttons::Ok;
  BoxIcon icon = BoxIcon::None;
  std::string title = "Thornquill";
  bool prefersNo = false;  // Enter declines, for what cannot be undone
};

// Shows the box over the active window and blocks until it is answered. Closing the box, or Escape, answers
// Ok in an Ok box, Cancel in an Ok/Cancel box and No in a Yes/No box.
Answer ShowMessage(const Message& message);
inline Answer ShowMessage(const std::string& text, BoxIcon icon = BoxIcon::None) {
  return ShowMessage(Message{text, Buttons::Ok, icon});
}

// Answers the box that is up as Escape does, if it only tells something. For a wish to leave.
void DismissMessage();

// The seam: whoever answers instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that answered before.
using MessageAnswerer = std::function<Answer(const Message&)>;
MessageAnswerer SetMessageAnswerer(MessageAnswerer answerer);

}  // namespace platform
