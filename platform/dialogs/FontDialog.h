// The one door through which a font is chosen.
#pragma once

#include <functional>

#include "platform/dialogs/CommonDialog.h"
#include "platform/dialogs/FontQuestion.h"

namespace platform {

// Blocks over the active window until a font is chosen or the dialog is closed. What the user leaves alone
// comes back as it went in: the name of a font that is not installed, and an empty name or a size of 0,
// which stand for a mixed text.
DialogResult<FontValues> AskForFont(const FontQuestion& question);

// The seam: whoever chooses instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that chose before.
using FontChooser = std::function<DialogResult<FontValues>(const FontQuestion&)>;
FontChooser SetFontChooser(FontChooser chooser);

}  // namespace platform
