// The common print dialog.
#pragma once

#include <functional>
#include <memory>
#include <optional>
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

// Shows the desktop's print dialog over the active window and blocks until it is answered. The selection can
// always be chosen. Nothing: cancelled. Throws platform::Failure when there is no dialog to be had.
std::optional<PrintOrder> ShowPrintDialog(const PrintRequest& request);

// The seam: whoever answers instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that answered before.
using PrintAnswerer = std::function<std::optional<PrintOrder>(const PrintRequest&)>;
PrintAnswerer SetPrintAnswerer(PrintAnswerer answerer);
