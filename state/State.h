// The state that every window and routine of the diary shares.
//
// There is no document object: a routine finds the open journal and the shown page by reading these
// variables. All of them belong to the one window thread. Arrays run from row 0 to their count, so they hold
// count + 1 rows, and a new row is blank.
//
// Texts are single bytes of Windows-1252. Colours are 0x00BBGGRR. Dates are days since 30 December 1899, the
// time of day as the fraction. Flags are 16-bit, False or True, because the file formats store them so and a
// record must leave the program with the very values that it came in with.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "state/PageBody.h"

using Flag = std::int16_t;
inline constexpr Flag False = 0;
inline constexpr Flag True = -1;

// One journal of the bookcase.
struct JournalEntry {
  std::string Name;            // plain here, scrambled in the index file
  std::string Reserved;        // always empty, but part of the format
  std::int32_t PageCount = 0;  // as last seen: 1 at creation, the file's count at each load
  std::string FileName;        // no folder, such as j00000.tqf; the key that ties pictures to a journal
  Flag Deleted = False;        // True: hidden, and dropped at the next save of the index
  std::int32_t Icon = 0;       // 1 to 63, an index of the bookcase's image list
  std::string FontName;        // the default font of the journal's text
  std::uint32_t FontColor = 0;
  std::int32_t FontSize = 0;  // points
  Flag FontBold = False;
  Flag FontItalic = False;
  Flag FontUnderline = False;
  Flag FontStrikethru = False;
  std::uint32_t PaperColor = 0;

  bool operator==(const JournalEntry&) const = default;
};

// One page of the open journal.
struct JournalPage {
  PageBody Body;        // the page's RTF, enciphered; empty for a page that was never stored
  double PageDate = 0;  // days since 30 December 1899
};

// One picture that lies on a page: the user's own file, where and how large it shows, and its frame.
struct PagePicture {
  std::string PictureFile;         // full path in the system's bytes, as the file dialog gave it
  std::int32_t PictureWidth = 0;   // pixels on the page
  std::int32_t PictureHeight = 0;  // pixels on the page
  std::int32_t Spare1 = 0;         // part of the format; carried through
  std::string Spare2;              // part of the format; carried through
  std::int32_t FrameIndex = 0;     // 0: no frame; n: the n-th of the frames at the time of adding
  std::string FrameFile;           // full path of the frame, empty without one
  std::int32_t PageNumber = 0;     // row of Pages that it lies on; never renumbered
  std::string JournalName;         // the journal's name at the time of adding; never compared
  std::string JournalFile;         // the journal's FileName, which ties the row to it
  std::int32_t Top = 0;            // pixels of the journal window's client area; any value
  std::int32_t Left = 0;
  Flag Deleted = False;  // True, and only True: removed, left out of the file at the next save

  bool operator==(const PagePicture&) const = default;
};

// The bookcase. Rows 1 to JournalCount are in use, removed ones included; row 0 stays blank and is never
// saved. Filled by LoadJournalIndex, grown by the dialogs that create journals; lives to the end of the run.
extern std::vector<JournalEntry> Journals;
extern std::int32_t JournalCount;

// The pages of the open journal, rows 0 (the title page) to PageCount. Filled by LoadJournalFile or
// NewJournalPages, erased when the journal window closes.
extern std::vector<JournalPage> Pages;
extern std::int32_t PageCount;  // highest row of Pages, at least 1 while a journal is open

// The page in hand. Read by everybody; state/PageInHand.h sets them, and tells the rule that they keep.
extern const std::int32_t& CurrentJournal;  // the row of Journals last opened; 0 before the first
extern const std::int32_t& PagesJournal;    // the row of Journals that Pages was read for; 0 for nobody's
extern const std::int32_t& CurrentPage;     // the row of Pages on show
extern const std::int32_t& TextPage;        // the row that the text box's text came from; -1 for none
extern const Flag& PageDirty;     // True when the text box changed since its page was shown or stored
extern const bool& PagesUnsaved;  // the last try to write the open journal failed, or is on its way

// The pictures of all pages of all journals, rows 0 to PictureCount. Row 0 is blank and never shown, but goes
// into the file. Empty until a store was loaded or a picture was added; rows are never sorted, reused or
// taken out.
extern std::vector<PagePicture> Pictures;
extern std::int32_t PictureCount;

// Always scrambled, as the index file holds it. Set at the first run and by a change of the password.
extern std::string MasterPassword;
// The page cipher's key, 0 to 255: the last character of the very first password, for the bookcase's whole
// life.
extern std::int32_t PageShift;

// Whether the variables above hold a bookcase that may be saved: set when the index has been read to its end
// or the first journal was made. Before that, a save would put an empty bookcase in the place of a good one.
extern bool BookcaseLoaded;

// Whether it was told, since the journal was opened, that a page of it is no document (editor/AlienPage.h).
extern bool AlienPageTold;

// Whether the last try to write the pictures failed: the file lacks what memory holds.
extern bool PicturesUnsaved;

// The two settings.
extern std::int32_t chkGotoLastPage;  // 1: a journal opens on its last page; 0: on its title page
extern std::int32_t optColor;         // the theme: 0 blue, 1 pink, 2 purple

// Heard by who keeps the log of what is not stored; each may be empty. The first is told before a file takes
// the place of the old one, so that the log is not older than the file; the second when something has been
// stored; the third has everything that is unstored written and waits for it, and returns whether the disk
// has it.
enum class DataFile { TheIndex, AJournal, ThePictures };
extern std::function<void(DataFile)> FileWillBeWritten;
extern std::function<void()> SomethingWasStored;
extern std::function<bool()> LogThrough;

// Called with the row of each journal that joins the bookcase; the bookcase window lists it. May be empty.
extern std::function<void(std::int32_t row)> JournalAdded;
