// What the pages of an export need to know beside the state of the journal: the values of the export dialog.
#pragma once

#include <cstdint>
#include <string>

// Texts are as they go into the page: Windows-1252, foreign characters as references, lines ended by "\r\n".
struct ExportSettings {
  std::string title;     // txtHTMLTitle
  std::string headline;  // txtH3headline
  std::string footer;    // txtFooter
  bool dateIndex = false;
  bool topMenu = false;
  bool showDates = false;
  bool showPageNumbers = false;
  std::int32_t pageCount = 0;  // the dated pages of the journal: N
};
