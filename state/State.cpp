#include "state/State.h"

std::vector<JournalEntry> Journals(1);
std::int32_t JournalCount = 0;

std::vector<JournalPage> Pages;
std::int32_t PageCount = 0;

std::string MasterPassword;
std::int32_t PageShift = 0;

bool BookcaseLoaded = false;

std::vector<PagePicture> Pictures;
std::int32_t PictureCount = 0;

bool AlienPageTold = false;

bool PicturesUnsaved = false;

std::int32_t chkGotoLastPage = 1;
std::int32_t optColor = 0;

std::function<void(DataFile)> FileWillBeWritten;
std::function<void()> SomethingWasStored;
std::function<bool()> LogThrough;

std::function<void(std::int32_t row)> JournalAdded;
