// The code page of an RTF document, which stands where a font names none.
#pragma once

#include <cstdint>

#include "richtext/characters/CodePages.h"

namespace richtext::rtf {

// \ansicpg outranks the character set's word (\ansi, \mac, \pc, \pca), whichever comes first; an \ansicpg
// that is not known is passed over. Where neither tells a page it is the Western one.
class DocumentCodePage {
 public:
  void SetCharacterSet(std::int32_t page) { characterSet_ = FindCodePage(page); }
  void SetAnsi(std::int32_t page) {
    if (const CodePage* known = FindCodePage(page)) ansi_ = known;
  }

  const CodePage& Page() const {
    if (ansi_ != nullptr) return *ansi_;
    return characterSet_ != nullptr ? *characterSet_ : WesternCodePage();
  }

 private:
  const CodePage* characterSet_ = nullptr;
  const CodePage* ansi_ = nullptr;
};

}  // namespace richtext::rtf
