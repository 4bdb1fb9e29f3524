// The pages of the open journal as one plain text, for printing.
#pragma once

#include <cstdint>

#include <QtCore/QString>

namespace look {
class Progress;
}

// The pages `first` to `last` as they were last stored, each behind its long date (but the title page, 0) and
// with a line end behind it, as far as it gets until it is cancelled. Reads them through frmPrintRTF.txtM.
// What cannot be read is told with the prefix "Error:" and left out.
QString JoinedPages(std::int32_t first, std::int32_t last, look::Progress& progress);
