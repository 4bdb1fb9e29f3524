// What becomes of a log's pages in a journal that is as it was, has changed since, or is gone.
#include <gtest/gtest.h>

#include "state/State.h"
#include "store/PageCipher.h"
#include "store/RollForward.h"

namespace {

using store::Rolled;
using store::UnstoredPage;

constexpr std::int32_t Shift = 71;

std::string Body(std::string_view text, std::int32_t shift = Shift) {
  const std::string plain = text.empty() ? "" : "{\\rtf1 " + std::string(text) + "}";
  std::string body(plain.size() * 2, '\0');
  store::Encipher(plain, shift, body.data());
  return body;
}

// The texts of the pages and their dates.
std::string Dump(const std::vector<JournalPage>& pages) {
  std::string dump;
  for (const JournalPage& page : pages) {
    std::string plain(page.Body.size() / 2, '\0');
    store::Decipher(page.Body, Shift, plain.data());
    if (plain.size() > 8) dump += plain.substr(7, plain.size() - 8);
    dump += "@" + std::to_string(static_cast<int>(page.PageDate)) + " ";
  }
  return dump;
}

class RollForwardTest : public testing::Test {
 protected:
  // A page of the log that began from what `pages` holds now.
  UnstoredPage Logged(std::int32_t row, std::optional<std::string> body, double date) const {
    const auto at = static_cast<std::size_t>(row);
    const bool isNew = at >= pages.size();
    return {row,  isNew, store::CheckOf(isNew ? "" : pages[at].Body), isNew ? 0 : pages[at].PageDate,
            date, body};
  }
  std::string Roll(const std::vector<UnstoredPage>& logged) {
    std::string how;
    for (const store::RolledPage& page : store::RollForward(logged, Shift, pages))
      how += "PETN"[static_cast<int>(page.how)] + std::to_string(page.row);
    return how + ": " + Dump(pages);
  }

  std::vector<JournalPage> pages = {{Body("title"), 1}, {Body("one"), 2}, {"", 3}};
};

TEST_F(RollForwardTest, GoesIntoRowsThatAreAsTheyWereAndOnlyOnce) {
  const std::vector<UnstoredPage> log = {Logged(1, Body("one more"), 2), Logged(2, Body("two"), 9),
                                         Logged(3, Body("three"), 4), Logged(4, "", 5)};
  const std::string rolled = ": title@1 one more@2 two@9 three@4 @5 ";
  EXPECT_EQ(Roll(log), "P1P2P3P4" + rolled);
  EXPECT_EQ(Roll(log), "T1T2T3T4" + rolled) << "a kill came before the log was gone";
}

TEST_F(RollForwardTest, TakesADateAloneOnlyWhereThePageIsAsItWas) {
  const std::vector<UnstoredPage> log = {Logged(0, {}, 7), Logged(1, {}, 8)};
  pages[1].Body = Body("another");
  EXPECT_EQ(Roll(log), "P0T1: title@7 another@2 @3 ");
}

// The log was written while a file was on its way to the disk: nobody knows which of the two is there.
TEST_F(RollForwardTest, GoesIntoARowThatIsAsItWasOrAsItWasToBe) {
  const std::string sent = Body("one and");
  UnstoredPage page = Logged(1, Body("one and more"), 8), dated = Logged(2, {}, 9);
  page.orBegan = {{store::CheckOf(sent), 5}};
  dated.orBegan = {{store::CheckOf(""), 6}};
  pages[1] = {sent, 5};
  pages[2].PageDate = 6;
  EXPECT_EQ(Roll({page, dated}), "P1P2: title@1 one and more@8 @9 ");
  pages[1] = {Body("another"), 5};
  pages[2].PageDate = 7;
  EXPECT_EQ(Roll({page, dated}), "E3T2: title@1 another@5 @7 one and more@8 ");
}

TEST_F(RollForwardTest, MakesAPageAtTheEndOfWhatHasChangedSince) {
  const std::vector<UnstoredPage> log = {Logged(1, Body("mine"), 2), Logged(3, Body("new"), 4)};
  pages[1].Body = Body("yours");
  pages.push_back({Body("your new"), 5});
  EXPECT_EQ(Roll(log), "E4E5: title@1 yours@2 @3 your new@5 mine@2 new@4 ");
  EXPECT_EQ(Roll(log), "T4T5: title@1 yours@2 @3 your new@5 mine@2 new@4 ")
      << "a kill came before the log was gone";
  const std::vector<UnstoredPage> late = {Logged(2, Body("second"), 3)};
  pages.clear();
  EXPECT_EQ(Roll(late), "E1: @3 second@3 ") << "the file has gone";
  pages.clear();
  EXPECT_EQ(Roll({Logged(0, Body("title"), 1)}), "P0: title@1 @1 ") << "no journal is a title page alone";
}

TEST_F(RollForwardTest, LeavesOutWhatAnotherKeyEnciphered) {
  EXPECT_EQ(Roll({Logged(1, Body("one more", Shift + 1), 2)}), "N1: title@1 one@2 @3 ");
}

}  // namespace
