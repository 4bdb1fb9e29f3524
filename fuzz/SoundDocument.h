// The promises of richtext/document/Document.h, checked.
#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "fuzz/Require.h"
#include "richtext/characters/Unicode.h"
#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"

inline void RequireSoundText(const std::u16string& text) {
  using namespace richtext;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    Require(unit >= u' ' || unit == u'\t', "the text holds no control character");
    Require(unit != ParagraphSeparator && !IsNoncharacter(unit), "the text holds no toolkit's mark");
    const bool pair = IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    Require(!IsSurrogate(unit) || pair, "surrogates come in pairs");
    if (pair) ++i;
  }
}

inline void RequireSoundRuns(const richtext::Document& document) {
  std::size_t run = 0;
  std::size_t length = 0;
  for (const richtext::Paragraph& paragraph : document.paragraphs) {
    Require(paragraph.format < document.paragraphFormats.size(), "a paragraph's format is there");
    Require(paragraph.markFormat < document.formats.size(), "a mark's format is there");
    std::size_t inRuns = 0;
    for (; inRuns < paragraph.length && run < document.runs.size(); ++run) {
      Require(document.runs[run].length > 0, "no run is empty");
      Require(document.runs[run].format < document.formats.size(), "a run's format is there");
      inRuns += document.runs[run].length;
    }
    Require(inRuns == paragraph.length, "a run ends where its paragraph ends");
    length += paragraph.length;
  }
  Require(run == document.runs.size() && length == document.text.size(), "runs and paragraphs are the text");
}

inline void RequireSoundFormats(const richtext::Document& document) {
  using namespace richtext;
  for (const CharacterFormat& format : document.formats)
    Require(format.halfPoints >= 1 && format.halfPoints <= MaxHalfPoints, "a size can be shown");
  for (const ParagraphFormat& format : document.paragraphFormats) {
    const auto comesBefore = [](const TabStop& a, const TabStop& b) { return a.position < b.position; };
    Require(std::is_sorted(format.tabs.begin(), format.tabs.end(), comesBefore), "tab stops are in order");
    Require(FittingTabs(format.tabs, format.borders) == format.tabs, "tab stops have room beside borders");
    Require(format.borders == FittingBorders(format.borders), "borders can be shown");
    Require(format.list.level >= 0 && format.list.level <= 8, "a list has nine levels");
  }
}

inline void RequireSoundPictures(const richtext::Document& document) {
  using namespace richtext;
  const auto marks = std::count(document.text.begin(), document.text.end(), PictureMark);
  Require(static_cast<std::size_t>(marks) == document.pictures.size(), "each picture has its mark");
  for (const Picture& picture : document.pictures) {
    const bool isFile = picture.kind == PictureKind::Png || picture.kind == PictureKind::Jpeg;
    Require(!picture.bytes.empty() && (!isFile || picture.header.empty()), "a picture is what its bytes are");
    Require(picture.widthTwips == FittingPictureSize(picture.widthTwips), "a width can be shown");
    Require(picture.heightTwips == FittingPictureSize(picture.heightTwips), "a height can be shown");
  }
}

inline void RequireSoundRows(const richtext::Document& document) {
  using namespace richtext;
  std::size_t row = 0, cells = 0;
  bool isOpen = false;
  for (const Paragraph& paragraph : document.paragraphs) {
    Require(!isOpen || paragraph.place != Place::Text, "a row ends before text goes on");
    isOpen = paragraph.place == Place::Cell || paragraph.place == Place::CellEnd;
    cells += paragraph.place == Place::CellEnd || paragraph.place == Place::RowEnd;
    if (paragraph.place != Place::RowEnd) continue;
    Require(row < document.rows.size() && document.rows[row] < document.rowFormats.size(), "a row is told");
    Require(document.rowFormats[document.rows[row++]].cells.size() == cells, "and each of its cells");
    cells = 0;
  }
  Require(!isOpen && row == document.rows.size(), "each row ends");
}

inline void RequireSound(const richtext::Document& document) {
  Require(!document.paragraphs.empty(), "there is a paragraph");
  RequireSoundRows(document);
  RequireSoundText(document.text);
  RequireSoundRuns(document);
  RequireSoundFormats(document);
  RequireSoundPictures(document);
}
