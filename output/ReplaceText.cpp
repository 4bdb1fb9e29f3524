// The told way starts again from the beginning after each replacement. Where the replacement has no character
// in common with the search text, no place can touch a replacement, all before it has been searched in vain,
// and the text is never again exactly the search text: one walk over the text then finds the same places.
#include "output/ReplaceText.h"

#include <algorithm>
#include <string_view>

#include "platform/Failure.h"

namespace {

// The capital of a letter of Windows-1252. Its letters without a capital there stay as they are.
char Capital(char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  const bool plain = byte >= 'a' && byte <= 'z';
  const bool accented = byte >= 0xE0 && byte != 0xF7 && byte != 0xFF;
  if (plain || accented) return static_cast<char>(byte - 0x20);
  if (byte == 0x9A || byte == 0x9C || byte == 0x9E) return static_cast<char>(byte - 0x10);
  return byte == 0xFF ? '\x9F' : letter;
}

std::string Capitals(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), Capital);
  return text;
}

// `capitals` is the text in capitals, in which `search` is looked for.
std::string ReplacedInOneWalk(std::string_view text, std::string_view capitals, std::string_view search,
                              std::string_view replacement) {
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = 0; (at = capitals.find(search, from)) != std::string_view::npos;
       from = at + search.size())
    result.append(text.substr(from, at - from)).append(replacement);
  return result.append(text.substr(from));
}

std::string ReplacedFromTheStart(std::string text, const std::string& search,
                                 const std::string& replacement) {
  const std::string wanted = Capitals(search);
  for (std::size_t at; text != search && (at = Capitals(text).find(wanted)) != std::string::npos;)
    text.replace(at, search.size(), replacement);
  return text == search ? std::string() : text;
}

}  // namespace

std::string ReplaceText(std::string text, const std::string& search, const std::string& replacement) {
  if (text == search) return {};
  const std::string capitals = Capitals(text);
  const std::string wanted = Capitals(search);
  if (text.empty() || capitals.find(wanted) == std::string::npos) return text;
  const std::string instead = Capitals(replacement);
  if (instead.find(wanted) != std::string::npos)
    throw platform::Failure(platform::FailureKind::InvalidArgument, "replacing by what holds the same again");
  if (!instead.empty() && instead.find_first_of(wanted) == std::string::npos)
    return ReplacedInOneWalk(text, capitals, wanted, replacement);
  return ReplacedFromTheStart(std::move(text), search, replacement);
}
