// What an export is seen through: the driver in modExport tells it, the dialog shows it.
#pragma once

#include <cstdint>
#include <string>

class ExportDisplay {
 public:
  virtual ~ExportDisplay() = default;
  virtual void HideResult() = 0;                         // of the export before
  virtual void ShowStart(std::int32_t steps) = 0;        // so many steps will be shown, the first one now
  virtual void ShowStep(std::int32_t step) = 0;          // 2 to `steps`
  virtual void ShowResult(const std::string& path) = 0;  // the page that was written last
};
