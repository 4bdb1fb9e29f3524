// What the common dialogs have in common: one struct goes in, and one comes out with how the dialog ended.
#pragma once

#include <string>
#include <string_view>

namespace platform {

struct DialogEnd {
  static constexpr int Cancelled = 32755;

  int number = 0;           // 0: something was chosen; Cancelled; any other is the number of a failure
  std::string description;  // the failure's, in UTF-8
};

// `choice` is what was chosen, and of no meaning at any other end.
template <class Choice>
struct DialogResult {
  DialogEnd end;
  Choice choice{};
};

// True when something was chosen. A failure is told: "Error 7 selecting font.", CR, LF, its description.
bool WasChosen(const DialogEnd& end, std::string_view what);

}  // namespace platform
