#include "editor/SelectFont.h"

#include "editor/PageFace.h"
#include "look/Spoken.h"
#include "platform/dialogs/FontDialog.h"
#include "richtext/box/RichTextBox.h"

namespace {

using platform::FontValues;
using richtext::RichTextBox;

FontValues ValuesOf(const RichTextBox& text) {
  FontValues values;
  values.bold = NullDefault(text.SelBold(), false);
  values.italic = NullDefault(text.SelItalic(), false);
  values.underline = NullDefault(text.SelUnderline(), false);
  values.strikethru = NullDefault(text.SelStrikeThru(), false);
  values.name = NullDefault(text.SelFontName(), QString());
  values.size = NullDefault(text.SelFontSize(), 0.0);
  values.color = NullDefault(text.SelColor(), std::uint32_t{0});
  return values;
}

void Apply(const FontValues& values, RichTextBox& text) {
  text.SetSelBold(values.bold);
  text.SetSelItalic(values.italic);
  text.SetSelUnderline(values.underline);
  text.SetSelStrikeThru(values.strikethru);
  text.SetSelFontName(values.name);
  text.SetSelFontSize(values.size);
  text.SetSelColor(values.color);
}

// One step for whoever undoes it.
void ApplyAtOnce(const FontValues& values, RichTextBox& text) {
  if (text.SelLength() == 0) return Apply(values, text);
  QTextCursor step = text.textCursor();
  step.beginEditBlock();
  Apply(values, text);
  step.endEditBlock();
}

}  // namespace

void ChangeSelectionFont() {
  RichTextBox& text = *Face().txtM;
  const auto result = platform::AskForFont({ValuesOf(text), text.BackColor(), false, look::Announce});
  if (platform::WasChosen(result.end, "font")) ApplyAtOnce(result.choice, text);
}
