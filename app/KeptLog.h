// The log of what is not stored, journal.tql, while the program runs: as true as the clock allows.
//
// Whatever changes what is unstored comes of a key, a click or a drop, and of nothing else. So behind each of
// them the log is looked after: at the first pause of a second, and at the latest two seconds after the first
// of them, what stands in memory alone is gathered and handed to the writer, if it is not what the log holds
// already. The window thread copies the page, in steps between which the windows live, and what it copied
// once only where it has changed; a thread of its own makes the bytes of these values and writes them
// (platform/files/LogWriter.h). When nothing is unstored the log goes.
#pragma once

#include <optional>
#include <string>

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include "editor/UnstoredPages.h"
#include "platform/files/LogWriter.h"
#include "store/UnstoredLog.h"

enum class DataFile;

class KeptLog : public QObject {
 public:
  // Begins with a first look at once. Until then, and after its end, nobody touches the file. `tells`:
  // whether a first failure is told in a message, once.
  explicit KeptLog(bool tells);
  ~KeptLog() override;

  // Has the log hold what is unstored now. Returns without waiting for the disk; false when it could not be
  // gathered.
  bool Look();
  // The same, and waits. Whether the disk has it.
  bool LookAndWait();
  // The end of a run of which everything was saved: the log goes, and this waits for it.
  void Remove();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LookSoon();
  void LookInSteps();
  bool IsCopiedSoon();
  void Rest();
  void LookAtTheBookcase();
  void HandOver(store::UnstoredLog log, UnstoredPages pages);
  void BeAsNewAs(DataFile file);
  void Tell(const std::optional<std::string>& failure);

  bool tells_;
  QTimer pause_, early_, nextStep_, deadline_;
  // What the writer was given last; both empty when the file is to be gone.
  store::UnstoredLog held_;
  UnstoredPages heldPages_;
  platform::LogWriter writer_;
};

// The one log of the program: begun when the bookcase is open, and only once.
void BeginTheLog(bool tells);
void EndTheLog();
// Both do nothing, and the first tells no, while there is none.
bool BringTheLogUpToDate();
void RemoveTheLog();
