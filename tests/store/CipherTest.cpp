// The two disguises: the scrambler of names and passwords, the cipher of pages.
#include <set>

#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using fixture::Texts;
using ScramblerTest = fixture::Desk;

std::string EverySecond(std::string_view text, std::size_t first) {
  std::string kept;
  for (std::size_t i = first; i < text.size(); i += 2) kept += text[i];
  return kept;
}
std::string Enciphered(std::string_view plain, int shift) {
  std::string body(plain.size() * 2, '\0');
  store::Encipher(plain, shift, body.data());
  return body;
}

TEST_F(ScramblerTest, RaisesByFourAndGoesOnAfterEveryCharacterThatCannotBeFormed) {
  EXPECT_EQ(EverySecond(ScrambleText("ab\xFB"), 1), "ef\xFF");
  const std::string scrambled = ScrambleText("a\xFC\xFFz"), invalid = "Invalid procedure call or argument";
  EXPECT_EQ(EverySecond(scrambled, 1), "eee~");
  EXPECT_EQ(scrambled.substr(0, 2), scrambled.substr(2, 2)) << "the pair before is repeated";
  EXPECT_EQ(EverySecond(ScrambleText("\xFEz"), 1), "~");
  EXPECT_EQ(answers.texts(), Texts(3, "Encryption Error:" + invalid));
  answers.messages.clear();
  EXPECT_EQ(UnscrambleText("?e?f?"), "abb") << "an odd filler repeats the character before it";
  EXPECT_EQ(UnscrambleText("?"), std::string(1, '\0'));
  EXPECT_EQ(UnscrambleText("?e?\3?f"), "ab") << "a code below four is left out";
  EXPECT_EQ(answers.texts(), Texts(3, "Decryption Error:" + invalid));
}

TEST(PageCipherTest, ShiftsAndWrapsByTwoHundredAndFiftyFive) {
  const struct {
    int plain, shift, coded, back;
  } cases[] = {{'a', 0, 'a', 'a'}, {255, 0, 255, 255}, {0, 255, 255, 0},   {1, 255, 1, 1},
               {255, 255, 255, 0}, {255, 1, 1, 0},     {254, 1, 255, 254}, {200, 56, 1, 200}};
  for (const std::size_t length : {1U, 63U, 64U, 700U})
    for (const auto& [plain, shift, coded, back] : cases) {
      const std::string body = Enciphered(std::string(length, static_cast<char>(plain)), shift);
      EXPECT_EQ(EverySecond(body, 0), std::string(length, static_cast<char>(coded))) << plain;
      EXPECT_EQ(Deciphered(body, shift), std::string(length, static_cast<char>(back))) << plain;
    }
}

// Fillers that repeated themselves from page to page would show which pages are alike.
TEST(FillersTest, AreDrawnAnewOutOfAHundredAndTwenty) {
  const std::string plain(5000, 'a'), fillers = EverySecond(Enciphered(plain, 65), 1);
  EXPECT_NE(fillers, EverySecond(Enciphered(plain, 65), 1));
  for (const std::string& some : {fillers, EverySecond(ScrambleText(plain), 0)}) {
    const std::set<unsigned char> drawn(some.begin(), some.end());
    EXPECT_EQ(std::tuple(drawn.size(), *drawn.begin(), *drawn.rbegin()), std::tuple(120, 30, 149));
  }
}

}  // namespace
