// What the print dialog is asked, and what it answers.
#pragma once

#include <memory>
#include <string>

#include "richtext/box/Paper.h"

enum class PrintChoice { All, Selection, Pages };

struct PrintRequest {
  bool selection = false;  // the selection is the choice that is set beforehand; all pages otherwise
  int highest = 0;         // the last page that can be asked for; the first one is 0
  int from = 0;            // the range that stands there at first; what is out of bounds shows as the bound
  int to = 0;
};

struct PrintOrder {
  PrintChoice choice = PrintChoice::All;
  int from = 0;  // of Pages: not above `to`
  int to = 0;
  std::unique_ptr<richtext::Paper> paper;  // the chosen printer, ready to be painted on
  std::string printer;                     // its name, or the path of the file that it writes; UTF-8
};
