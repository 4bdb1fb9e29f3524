// The export of the open journal as web pages, into the folder "export" of the program's folder.
//
// It turns the pages in the journal window, which nobody sees meanwhile, and reads the text of each from its
// text box. The journal stays as it is, in memory and on the disk.
#pragma once

#include <cstdint>
#include <string>

class ExportDisplay;
struct ExportSettings;

// The page that "View in Web Browser" opens: full path, in the system's own bytes, of the index page or the
// single page of the latest export; empty before the first one.
extern std::string ExportTarget;

// Makes the folder that all exports go to, if nothing has its name. Returns 0; or 1 when that failed, which
// has been told in a box then.
int EnsureExportFolder();

// The dated pages of the open journal.
std::int32_t ExportedPageCount();

// Several pages in a folder of the journal's own: index.html and page1.html and onward; or one page, named
// after the journal. Where the index or the one page is there already, a box asks whether to write it over,
// and the answer can end the export. The page turned to last stays current.
//
// Both throw platform::Failure, with a part of the pages written, where something cannot be written; with
// BadFileName nothing has been written.
void ExportMultiPage(const ExportSettings& settings, ExportDisplay& display);
void ExportSinglePage(const ExportSettings& settings, ExportDisplay& display);
