// The one door through which a font is chosen.
#pragma once

#include <cstdint>
#include <functional>

#include <QtCore/QString>

#include "platform/dialogs/CommonDialog.h"

namespace platform {

struct FontValues {
  QString name;     // empty: none
  double size = 0;  // points, in halves; 0: none
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethru = false;
  std::uint32_t color = 0;  // 0x00BBGGRR

  bool operator==(const FontValues&) const = default;
};

struct FontQuestion {
  FontValues start;                // what the dialog stands on at first
  std::uint32_t paper = 0xFFFFFF;  // under the sample
  bool codePageNames = false;      // offers only fonts whose names the code page holds
};

// Blocks over the active window until a font is chosen or the dialog is closed. What the user leaves alone
// comes back as it went in: the name of a font that is not installed, and an empty name or a size of 0,
// which stand for a mixed text.
DialogResult<FontValues> AskForFont(const FontQuestion& question);

// The seam: whoever chooses instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that chose before.
using FontChooser = std::function<DialogResult<FontValues>(const FontQuestion&)>;
FontChooser SetFontChooser(FontChooser chooser);

}  // namespace platform
