#include "richtext/characters/SymbolFonts.h"

#include <cstddef>

namespace richtext {
namespace {

// From the byte 0x20 on, sixteen in a row; a blank where there is no such character.
// clang-format off
constexpr std::u16string_view Symbol =
    u" !∀#∃%&∋()∗+,−./"
    u"0123456789:;<=>?"
    u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟ"
    u"ΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
    u"‾αβχδεφγηιϕκλμνο"
    u"πθρστυϖωξψζ{|}∼ "
    u"                "
    u"                "
    u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓"
    u"°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
    u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"
    u"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
    u"◊⟨®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"
    u" ⟩∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭ ";

constexpr std::u16string_view Wingdings =
    u" ✏✂✁    ☎✆✉     "
    u"      ⌛⌨      ✇✍"
    u" ✌   ☜☞☝☟ ☺ ☹ ☠⚐"
    u" ✈☼ ❄ ✞ ✠✡☪☯ॐ☸♈♉"
    u"♊♋♌♍♎♏♐♑♒♓&&●❍■□"
    u"□❑❒⬧⧫◆❖⬥⌧⮹⌘❀✿❝❞ "
    u"⓪①②③④⑤⑥⑦⑧⑨⑩⓿❶❷❸❹"
    u"❺❻❼❽❾❿        ·•"
    u" ○  ◉◎ ▪◻ ✦★✶✴✹✵"
    u" ⌖⟡⌑ ✪✰         "
    u"                "
    u"     ⌫⌦ ➢   ➲  ←"
    u"→↑↓↖↗↙↘⬅➔⬆⬇    ⇦"
    u"⇨⇧⇩⬄⇳      ✗✔☒☑ ";
// clang-format on
static_assert(Symbol.size() == 224 && Wingdings.size() == 224);

constexpr char16_t Signs = 0xF000;

CodePage PageOf(std::u16string_view characters) {
  CodePage page = *FindCodePage(SymbolPage);
  for (std::size_t i = 0; i < characters.size(); ++i)
    if (characters[i] != u' ') page.units[0x20 + i] = characters[i];
  return page;
}

const CodePage& WingdingsPage() {
  static const CodePage page = PageOf(Wingdings);
  return page;
}

const CodePage& SymbolFontPage() {
  static const CodePage page = PageOf(Symbol);
  return page;
}

}  // namespace

const CodePage& SignsOfFont(std::string_view name) {
  if (name == "Symbol") return SymbolFontPage();
  return name == "Wingdings" ? WingdingsPage() : *FindCodePage(SymbolPage);
}

char16_t SignAnywhere(char16_t unit) {
  if ((unit & 0xFF00) != Signs || (unit & 0xFF) <= 0x20) return CodePage::Nothing;
  for (const CodePage* page : {&WingdingsPage(), &SymbolFontPage()})
    if (const char16_t sign = page->units[unit & 0xFF]; sign != unit) return sign;
  return CodePage::Nothing;
}

}  // namespace richtext
