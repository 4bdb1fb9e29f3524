// The files that another program offers by dragging or on the clipboard.
#pragma once

#include <string>
#include <vector>

class QMimeData;

struct OfferedFile {
  std::string name;  // its path in the system's bytes, or the whole address of what lies elsewhere
  bool isHere;       // on this machine
};

// In their order. None where the offer is a text, a picture or a link of a browser's, which go into the page
// themselves. Nothing is opened.
std::vector<OfferedFile> OfferedFiles(const QMimeData& offered);
