// The two disguises: the scrambler of names and passwords, the cipher of pages.
#include <set>

#include "store/PageCipher.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using fixture::Texts;
using ScramblerTest = fixture::Desk;

std::string Enciphered(std::string_view plain, int shift) {
  std::string body(plain.size() * 2, '\0');
  store::Encipher(plain, shift, body.data());
  return body;
}

TEST_F(ScramblerTest, PutsAFillerBeforeTheRaisedCharacter) {
  EXPECT_EQ(WithoutFillers(ScrambleText("ab\xFB"), 1), "ef\xFF");
  for (const char byte : WithoutFillers(ScrambleText(std::string(5000, 'a')), 0)) {
    const int filler = static_cast<unsigned char>(byte);
    EXPECT_TRUE(filler >= 30 && filler <= 149) << filler;
  }
  EXPECT_EQ(UnscrambleText(UnscrambleText(ScrambleText(ScrambleText("p\xE9")))), "p\xE9");
  EXPECT_EQ(answers.texts(), Texts());
}

TEST_F(ScramblerTest, GoesOnAfterEveryCharacterThatCannotBeFormed) {
  const std::string scrambled = ScrambleText("a\xFC\xFFz"), invalid = "Invalid procedure call or argument";
  EXPECT_EQ(WithoutFillers(scrambled, 1), "eee~") << "the pair before is repeated";
  EXPECT_EQ(scrambled.substr(0, 2), scrambled.substr(2, 2));
  EXPECT_EQ(WithoutFillers(ScrambleText("\xFEz"), 1), "~");
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
      EXPECT_EQ(WithoutFillers(body, 0), std::string(length, static_cast<char>(coded))) << plain;
      EXPECT_EQ(Deciphered(body, shift), std::string(length, static_cast<char>(back))) << plain;
    }
}

// Fillers that repeated themselves from page to page would show which pages are alike.
TEST(PageCipherTest, DrawsEachFillerAnew) {
  const std::string first = WithoutFillers(Enciphered(std::string(5000, 'a'), 65), 1);
  const std::set<unsigned char> drawn(first.begin(), first.end());
  EXPECT_EQ(std::tuple(drawn.size(), *drawn.begin(), *drawn.rbegin()), std::tuple(120, 30, 149));
  EXPECT_NE(first, WithoutFillers(Enciphered(std::string(5000, 'a'), 65), 1));
  EXPECT_NE(first.substr(0, 64), first.substr(64, 64));
}

}  // namespace
