// RTF in four layers, each of which knows only the ones before it: the tokenizer knows the syntax, the groups
// keep the formats (GroupState.h), the control words say what to do (ControlWords.cpp), and the builder
// makes the document. This file drives them, token by token.
#include "richtext/rtf/Reader.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "richtext/rtf/Context.h"
#include "richtext/rtf/ControlWords.h"
#include "richtext/rtf/Tokenizer.h"

namespace richtext::rtf {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view rtf) : tokens_(rtf), context_(rtf.size()) {}
  Document Read();

 private:
  bool EndsDocument(const Token& token) const;
  bool IsFallback(Token& token);
  void Take(const Token& token);
  void TakeWord(const Token& token, bool ignorable);
  void TakeSymbol(char symbol);

  Tokenizer tokens_;
  Context context_;
  std::int32_t fallbackLeft_ = 0;  // what still stands for the last \u, for readers who do not know it
  bool groupJustBegan_ = false;
  bool ignorable_ = false;  // "{\*" was just read
};

Document Reader::Read() {
  for (Token token = tokens_.Next(); !EndsDocument(token); token = tokens_.Next())
    if (!IsFallback(token)) Take(token);
  return context_.Take();
}

// Whatever follows the brace that closes the first one is no part of the document.
bool Reader::EndsDocument(const Token& token) const {
  return token.kind == TokenKind::End || (token.kind == TokenKind::GroupEnd && context_.Depth() <= 1);
}

// A byte, a word or a symbol counts one; what a \u never stands for ends the count, so that no text is lost
// to a writer who forgot the fallback. Of a text, what is left stays in the token.
bool Reader::IsFallback(Token& token) {
  if (fallbackLeft_ == 0) return false;
  if (token.kind == TokenKind::Text) {
    const auto length = std::min(token.text.size(), static_cast<std::size_t>(fallbackLeft_));
    token.text.remove_prefix(length);
    fallbackLeft_ -= static_cast<std::int32_t>(length);
    return token.text.empty();
  }
  const bool brace = token.kind == TokenKind::GroupStart || token.kind == TokenKind::GroupEnd;
  const bool lineEnd = token.kind == TokenKind::Symbol && (token.byte == '\r' || token.byte == '\n');
  const ControlWord* word = token.kind == TokenKind::Word ? FindControlWord(token.text) : nullptr;
  if (brace || lineEnd || (word != nullptr && word->kind == WordKind::Structure)) {
    fallbackLeft_ = 0;
    return false;
  }
  --fallbackLeft_;
  return true;
}

void Reader::Take(const Token& token) {
  const bool first = std::exchange(groupJustBegan_, token.kind == TokenKind::GroupStart);
  const bool ignorable = std::exchange(ignorable_, false);
  if (token.kind == TokenKind::GroupStart) return context_.BeginGroup();
  if (token.kind == TokenKind::GroupEnd) return context_.EndGroup();
  if (context_.Skipping()) return;
  switch (token.kind) {
    case TokenKind::Text:
      return context_.PutBytes(token.text);
    case TokenKind::Word:
      return TakeWord(token, ignorable);
    case TokenKind::Hex:
      return context_.PutLiteral(token.byte);
    case TokenKind::Symbol:
      ignorable_ = first && token.byte == '*';
      return TakeSymbol(token.byte);
    case TokenKind::Binary:
      return context_.PutBinary(token.text);
    default:
      return;
  }
}

void Reader::TakeWord(const Token& token, bool ignorable) {
  const ControlWord* word = FindControlWord(token.text);
  if (ignorable && (word == nullptr || word->kind != WordKind::Destination)) return context_.SkipGroup();
  const bool names = word != nullptr && word->kind == WordKind::Destination;
  if (!names && context_.State().destination == Destination::Picture)
    return context_.PictureInHand().TakeWord(token.text, token.hasParameter, token.parameter);
  if (word == nullptr) return;
  const std::int32_t parameter = token.hasParameter ? token.parameter : word->whenAbsent;
  if (!names && context_.State().destination == Destination::StyleSheet)
    return context_.Styles().Take(*word, parameter);
  word->handle(context_, word->argument, parameter);
  if (token.text == "u") fallbackLeft_ = context_.State().fallbackLength;
}

void Reader::TakeSymbol(char symbol) {
  switch (symbol) {
    case '\\':
    case '{':
    case '}':
      return context_.PutLiteral(symbol);
    case '\r':
    case '\n':
      return context_.EndParagraph();
    case '\t':
      return context_.PutCharacter(u'\t');
    case '~':
      return context_.PutCharacter(0x00A0);
    case '-':
      return context_.PutCharacter(0x00AD);
    case '_':
      return context_.PutCharacter(0x2011);
    default:
      return;
  }
}

// CR LF, CR and LF end a paragraph each.
Document ReadPlainText(std::string_view text) {
  Context context(text.size());
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    context.PutBytes(text.substr(0, end));
    if (end == std::string_view::npos) break;
    context.EndParagraph();
    text.remove_prefix(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
    if (text.empty()) context.EndParagraph();  // the last line is empty, and there
  }
  return context.Take();
}

}  // namespace
}  // namespace richtext::rtf

namespace richtext {

bool IsRtf(std::string_view text) {
  return text.starts_with("{\\rtf") || text.starts_with("{\\urtf");
}

Document ReadRtf(std::string_view rtf) {
  constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";  // which editors put in
  if (rtf.starts_with(Utf8Mark) && IsRtf(rtf.substr(Utf8Mark.size()))) rtf.remove_prefix(Utf8Mark.size());
  return IsRtf(rtf) ? rtf::Reader(rtf).Read() : rtf::ReadPlainText(rtf);
}

}  // namespace richtext
