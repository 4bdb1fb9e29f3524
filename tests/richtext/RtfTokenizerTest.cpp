#include <gtest/gtest.h>
#include <string>

#include "richtext/RtfTokenizer.h"

using richtext::RtfTokenizer;
using richtext::Token;
using richtext::TokenKind;

namespace {

std::string Dump(const Token& token) {
  switch (token.kind) {
    case TokenKind::GroupStart:
      return "{";
    case TokenKind::GroupEnd:
      return "}";
    case TokenKind::Word:
      return '\\' + std::string(token.text) +
             (token.hasParameter ? '=' + std::to_string(token.parameter) : "");
    case TokenKind::Symbol:
      return std::string("\\") + token.byte;
    case TokenKind::Hex:
      return '\'' + std::to_string(static_cast<unsigned char>(token.byte));
    case TokenKind::Text:
      return '"' + std::string(token.text) + '"';
    case TokenKind::Binary:
      return "bin:" + std::string(token.text);
    case TokenKind::End:
      break;
  }
  return "end";
}

std::string Tokens(std::string_view rtf) {
  RtfTokenizer tokenizer(rtf);
  std::string line;
  for (Token token = tokenizer.Next(); token.kind != TokenKind::End; token = tokenizer.Next())
    line += Dump(token) + ' ';
  return line;
}

TEST(RtfTokenizer, KnowsTheSyntax) {
  const struct {
    std::string rtf;
    const char* tokens;
  } examples[] = {
      {"{a}b", R"({ "a" } "b" )"},
      {"\\b bold\\b0  x", R"(\b "bold" \b=0 " x" )"},
      {"\\fs24\\Fs-7x", R"(\fs=24 \Fs=-7 "x" )"},
      {"\\b-x\\b- 1", R"(\b "-x" \b "- 1" )"},
      {"\\u8364?", R"(\u=8364 "?" )"},
      {"a\r\nb\\b\n c", R"("a" "b" \b " c" )"},
      {"\\~ x\\*\\\\", R"(\~ " x" \* \\ )"},
      {"\\'e9 \\'FFg", R"('233 " " '255 "g" )"},
      {"\\'g1\\'1", R"("g1" "1" )"},
      {"\\bin3 }{\\x", R"(bin:}{\ "x" )"},
      {"\\bin0x\\bin-1 x\\bin9 x\\bin x", R"(bin: "x" bin: "x" bin: "x" bin: "x" )"},
      {"\\fs9999999999999999999999 \\fs-9999999999999999999999", "\\fs=2147483647 \\fs=-2147483648 "},
      {"\\", ""},
      {"\\a", "\\a "},
      {"\\a-", "\\a \"-\" "},
  };
  for (const auto& example : examples) EXPECT_EQ(Tokens(example.rtf), example.tokens);
}

}  // namespace
