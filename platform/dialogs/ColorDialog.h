// The one door through which a colour is chosen.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/dialogs/CommonDialog.h"

namespace platform {

struct ColorQuestion {
  std::uint32_t start = 0;  // 0x00BBGGRR, as all colours here: what the dialog stands on at first
};

// Blocks over the active window until a colour is chosen or the dialog is closed.
DialogResult<std::uint32_t> AskForColor(const ColorQuestion& question);

// The seam: whoever chooses instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that chose before.
using ColorChooser = std::function<DialogResult<std::uint32_t>(const ColorQuestion&)>;
ColorChooser SetColorChooser(ColorChooser chooser);

}  // namespace platform
