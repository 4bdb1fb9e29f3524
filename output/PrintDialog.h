// The common print dialog.
#pragma once

#include <functional>
#include <optional>

#include "output/PrintOrder.h"

// Shows the desktop's print dialog over the active window and blocks until it is answered. The selection can
// always be chosen. Nothing: cancelled. Throws platform::Failure when there is no dialog to be had.
std::optional<PrintOrder> ShowPrintDialog(const PrintRequest& request);

// The seam: whoever answers instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that answered before.
using PrintAnswerer = std::function<std::optional<PrintOrder>(const PrintRequest&)>;
PrintAnswerer SetPrintAnswerer(PrintAnswerer answerer);
