#include "state/State.h"

#include <malloc.h>

std::vector<JournalEntry> Journals(1);
std::int32_t JournalCount = 0;

std::vector<JournalPage> Pages;
std::int32_t CurrentPage = 0;
std::int32_t PageCount = 0;
Flag PageDirty = False;
std::int32_t CurrentJournal = 0;

std::string MasterPassword;
std::int32_t PageShift = 0;

bool BookcaseLoaded = false;

std::vector<PagePicture> Pictures;
std::int32_t PictureCount = 0;

std::int32_t PagesJournal = 0;
std::int32_t TextPage = -1;

bool AlienPageTold = false;

bool PagesUnsaved = false;
bool PicturesUnsaved = false;

std::int32_t chkGotoLastPage = 1;
std::int32_t optColor = 0;

std::function<void(DataFile)> FileWillBeWritten;
std::function<void()> SomethingWasStored;
std::function<bool()> LogThrough;

std::function<void(std::int32_t row)> JournalAdded;

void ForgetPages() {
  const bool held = !Pages.empty();
  Pages = {};
  if (held) malloc_trim(0);  // the allocator would keep a long journal's memory for the next one
  PageCount = 0;
  CurrentPage = 0;
  PageDirty = False;
  PagesJournal = 0;
  TextPage = -1;
  AlienPageTold = false;
  PagesUnsaved = false;
}

void ResetState() {
  ForgetPages();
  Journals.assign(1, {});
  JournalCount = 0;
  CurrentJournal = 0;
  Pictures.clear();
  PictureCount = 0;
  PicturesUnsaved = false;
  MasterPassword.clear();
  PageShift = 0;
  BookcaseLoaded = false;
  chkGotoLastPage = 1;
  optColor = 0;
  FileWillBeWritten = nullptr;
  SomethingWasStored = nullptr;
  LogThrough = nullptr;
  JournalAdded = nullptr;
}
