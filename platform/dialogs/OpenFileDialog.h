// The one door through which a file of the user's is chosen.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// One entry of the dialog's list of kinds.
struct FileFilter {
  std::string description;  // UTF-8, shown as it is
  std::string patterns;     // separated by semicolons, without regard to case; "*.*" is every file
};

struct OpenFileQuestion {
  std::string title;  // UTF-8
  std::vector<FileFilter> filters;
  int filterIndex = 1;  // the filter in force at first, counted from 1
};

// Descriptions and patterns in turn with a bar between them: "Bitmaps (*.bmp)|*.bmp|All files|*.*".
std::vector<FileFilter> FiltersFrom(const std::string& text);

// Blocks over the active window until an existing file is chosen: its full path in the system's bytes, or
// nothing when the dialog was cancelled. Opens in the folder of the last choice of this run, at first in the
// user's folder of pictures.
std::optional<std::string> AskForFile(const OpenFileQuestion& question);

// The seam: whoever chooses instead of the desktop. An empty function gives the desktop its place back.
// Returns the one that chose before.
using OpenFileChooser = std::function<std::optional<std::string>(const OpenFileQuestion&)>;
OpenFileChooser SetOpenFileChooser(OpenFileChooser chooser);

}  // namespace platform
