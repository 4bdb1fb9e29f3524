#include "bench/BigDiary.h"

#include "platform/Dates.h"
#include "store/JournalSaving.h"
#include "store/PageCipher.h"
#include "store/Scrambler.h"
#include "tests/support/Staging.h"

namespace bench {
namespace {

constexpr std::int32_t Shift = 'x';

std::string Enciphered(const std::string& rtf) {
  std::string body(2 * rtf.size(), '\0');
  store::Encipher(rtf, Shift, body.data());
  return body;
}

}  // namespace

std::string PageOf(std::int32_t number, std::size_t bytes) {
  std::string rtf =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}}\r\n{\\colortbl "
      ";\\red0\\green0\\blue0;}\r\n\\viewkind4\\uc1\\pard\\cf1\\f0\\fs32 Page ";
  rtf += std::to_string(number) + ".\\par\r\n";
  while (rtf.size() + 90 < bytes)
    rtf += "The quick brown fox jumps over the lazy dog and is \\b back\\b0  before it rains.\\par\r\n";
  return rtf + "}\r\n";
}

void OneJournal() {
  ResetState();
  Journals.resize(2);
  JournalCount = 1;
  JournalEntry& row = Journals[1];
  row.Name = "Bench";
  row.FileName = "j00000.tqf";
  row.Icon = 1;
  row.FontName = "Verdana";
  row.FontSize = 16;
  row.PaperColor = 0xFFFFFF;
  MasterPassword = ScrambleText("x");
  PageShift = Shift;
  Staged().CurrentJournal = 1;
}

void MoreJournals(std::int32_t count) {
  while (JournalCount < count) {
    JournalEntry row = Journals.at(1);
    row.Icon = ++JournalCount;
    row.Name.append(" ").append(std::to_string(JournalCount));
    row.FileName.replace(1, 5, std::to_string(10000 + JournalCount));
    Journals.push_back(row);
  }
}

void WriteJournal(std::int32_t pages, std::size_t pageBytes) {
  const double today = platform::Now();
  for (std::int32_t page = 0; page <= pages; ++page)
    Pages.push_back({Enciphered(PageOf(page, pageBytes)), today - pages + page});
  PageCount = pages;
  PageInHand::PagesRead();
  SaveJournalFile(Journals.at(1).FileName);
  PageInHand::PagesForgotten();
}

}  // namespace bench
