// A page as plainly as it can be told, to hold the text box against: one sign a position, the end of each
// paragraph one of them. What an edit makes of it is what a person means by it.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext {

struct Sign {
  char16_t unit = u'\n';
  CharacterFormat look;
  ParagraphFormat format = {};  // of an end
  bool operator==(const Sign&) const = default;
};

class PlainPage {
 public:
  PlainPage() = default;
  explicit PlainPage(const Document& page) {
    std::size_t at = 0, run = 0;
    for (const Paragraph& paragraph : page.paragraphs) {
      for (const std::size_t end = at + paragraph.length; at < end; ++run)
        for (std::uint32_t i = 0; i < page.runs[run].length; ++i)
          signs.push_back({page.text[at++], page.formats[page.runs[run].format]});
      signs.push_back({u'\n', page.formats[paragraph.markFormat], page.paragraphFormats[paragraph.format]});
    }
  }
  Document ToDocument() const {
    Document page;
    std::uint32_t number = 0, letters = 0;
    for (const Sign& sign : signs) {
      page.formats.push_back(sign.look);
      page.paragraphFormats.push_back(sign.format);
      page.text += IsEnd(sign) ? u"" : std::u16string(1, sign.unit);
      if (IsEnd(sign))
        page.paragraphs.push_back({std::exchange(letters, 0), number, number});
      else
        page.runs.push_back({1, number}), ++letters;
      ++number;
    }
    return page;
  }
  bool operator==(const PlainPage&) const = default;

  static bool IsEnd(const Sign& sign) { return sign.unit == u'\n'; }
  int Length() const { return static_cast<int>(signs.size()); }
  Sign& At(int at) { return signs[static_cast<std::size_t>(at)]; }
  const Sign& At(int at) const { return signs[static_cast<std::size_t>(at)]; }
  bool IsLetter(int at) const { return at >= 0 && at < Length() && !IsEnd(At(at)); }
  bool IsStart(int at) const { return !IsLetter(at - 1); }
  bool IsEmpty(int at) const { return IsStart(at) && !IsLetter(at); }  // the paragraph
  int EndAfter(int at) const {
    while (IsLetter(at)) ++at;
    return at;
  }
  auto ParagraphOf(int at) const { return std::count_if(signs.begin(), signs.begin() + at, IsEnd); }

  // What is typed at `from` in the place of all up to `to`.
  CharacterFormat InHand(int from, int to) const {
    int last = to - 1;
    while (last >= from && !IsLetter(last)) --last;
    CharacterFormat look = At(last >= from ? last : IsStart(from) ? from : from - 1).look;
    look.hidden = false;
    const std::string before = LinkOf(from - 1);
    const bool isWithin = !before.empty() && before == LinkOf(to);
    return look.link.empty() || isWithin ? look : Around(from);
  }
  // What a selection holds. All ends but the last are signs among others; that one goes with its paragraph.
  std::vector<Sign*> Held(int from, int to) {
    std::vector<Sign*> held;
    for (int at = from; at < to; ++at) held.push_back(&At(at));
    if (to == Length() - 1 && from < to && IsWhole(from, to)) held.push_back(&signs.back());
    return held;
  }
  // Of paragraphs that become one the first one's end is kept, and its format where something is left of it.
  void Remove(int from, int to) {
    const Sign first = At(EndAfter(from));
    const bool joins = ParagraphOf(from) != ParagraphOf(to);
    signs.erase(signs.begin() + from, signs.begin() + to);
    Sign& end = At(EndAfter(from));
    if (joins) end.look = first.look;
    if (joins && !IsStart(from)) end.format = first.format;
  }
  void Insert(int at, const Sign& sign) { signs.insert(signs.begin() + at, sign); }
  // The end that comes in is the first part's; the rest begins in the format in hand.
  void Part(int at, const CharacterFormat& inHand) {
    Sign& rest = At(EndAfter(at));
    const CharacterFormat before = std::exchange(rest.look, inHand);
    rest.look.link.clear();
    Insert(at, {u'\n', IsStart(at) ? rest.look : before, rest.format});
  }
  // Returns the position behind it.
  int Paste(int at, const PlainPage& clip) {
    const bool isOne = clip.EndAfter(0) == clip.Length() - 1;
    const bool joins = !IsStart(at) || (IsLetter(at) && isOne);
    Sign end = At(EndAfter(at));
    const Sign rest = IsLetter(at) && !isOne ? end : clip.signs.back();
    const bool keeps = isOne && end.format != ParagraphFormat();
    if (!joins && !keeps) end = clip.At(clip.EndAfter(0));
    At(EndAfter(at)) = isOne ? end : rest;
    std::vector<Sign> text(clip.signs.begin(), clip.signs.end() - 1);
    if (!isOne) text[static_cast<std::size_t>(clip.EndAfter(0))] = end;
    signs.insert(signs.begin() + at, text.begin(), text.end());
    return at + static_cast<int>(text.size());
  }

  std::vector<Sign> signs;

 private:
  bool IsWhole(int from, int to) const {
    while (to > from && IsLetter(to - 1)) --to;
    return IsStart(to);
  }
  std::string LinkOf(int at) const { return IsLetter(at) ? At(at).look.link : std::string(); }
  CharacterFormat Around(int at) const {
    int near = at - 1;
    while (IsLetter(near) && !At(near).look.link.empty()) --near;
    if (!IsLetter(near))
      for (near = at; IsLetter(near) && !At(near).look.link.empty();) ++near;
    CharacterFormat look = At(near).look;
    look.link.clear();
    look.hidden = false;
    return look;
  }
};

}  // namespace richtext
