// A font with its effects and colour, and the question for one.
#pragma once

#include <cstdint>
#include <functional>

#include <QtCore/QString>

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
  FontValues start;                                   // what the dialog stands on at first
  std::uint32_t paper = 0xFFFFFF;                     // under the sample
  bool codePageNames = false;                         // offers only fonts whose names the code page holds
  std::function<void(const QString&)> announce = {};  // says aloud what the dialog tells while it is open
};

}  // namespace platform
