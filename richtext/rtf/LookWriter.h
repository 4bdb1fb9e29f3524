// Writes character formats, each by what it changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/rtf/Output.h"
#include "richtext/rtf/Tables.h"

namespace richtext::rtf {

class LookWriter {
 public:
  LookWriter(const Document& document, const Tables& tables, Output& out);

  // The text that follows is of one of the document's formats.
  void SetText(std::uint32_t format);
  // A paragraph's end follows, which no link goes across.
  void SetMark(std::uint32_t format);
  // It has been written. No group is open.
  void EndParagraph();

 private:
  // A character format as the control words tell it.
  struct Look {
    std::size_t font = SIZE_MAX;  // no font yet
    std::int32_t halfPoints = 0;  // no size yet
    std::size_t color = 0;
    std::size_t highlight = 0;
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool hidden = false;
    UnderlineKind underline = UnderlineKind::None;
    Capitals capitals = Capitals::AsWritten;
    VerticalPlace place = VerticalPlace::Baseline;
    bool operator==(const Look&) const = default;

    // What some readers end with the group alone: by "\\highlight0" they black out the text, and
    // "\\nosupersub" they do not know.
    bool IsGrouped() const { return highlight != 0 || place != VerticalPlace::Baseline; }
  };

  static Look LookOf(const CharacterFormat& format, std::uint32_t number, const Tables& tables);
  void SetLink(std::string_view link);
  void SetLook(const Look& look);
  void SetGrouped(const Look& look);
  void EndGroup();
  void SetCapitals(Capitals capitals);

  const Document& document_;
  Output& out_;
  std::vector<Look> looks_;  // of the document's formats
  Look look_;                // in force
  Look lookAround_;          // in force around the open field
  Look lookAroundGroup_;     // likewise, around the group of a look that IsGrouped
  std::string_view link_;    // of the open field; empty: none is open
};

}  // namespace richtext::rtf
