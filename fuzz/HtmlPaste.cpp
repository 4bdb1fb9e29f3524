// Markup that is pasted between two letters makes a sound page there, which comes back when it is stored and
// shown again.

#include <QtCore/QMimeData>
#include <QtWidgets/QApplication>

#include "fuzz/SoundDocument.h"
#include "richtext/box/RichTextBox.h"
#include "richtext/textdocument/TextDocument.h"

namespace {

constexpr std::size_t FilledUpCells = 10'000;  // to the length of a table's longest row

class Box : public richtext::RichTextBox {
 public:
  void Paste(const QMimeData& offered) { insertFromMimeData(&offered); }
};

}  // namespace

// What the fonts' library keeps for the next time.
// NOLINTNEXTLINE(bugprone-reserved-identifier)  ; the sanitizer gives the name
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  new QApplication(*argc, *argv);  // outlives everything
  return 0;
}

void Try(std::string_view input) {
  static auto* const box = new Box;  // goes with the process, since the toolkit must not go before it
  QMimeData offered;
  offered.setData(QStringLiteral("text/html"),
                  QByteArray(input.data(), static_cast<qsizetype>(input.size())));
  box->SetTextRTF("{\\rtf1 ab}");
  box->SetSelStart(1);
  box->Paste(offered);
  const richtext::Document page = richtext::TakeDocument(*box->document());
  RequireSound(page);
  Require(page.text.starts_with(u'a') && page.text.ends_with(u'b'), "the letters around it stay");
  Require(page.text.size() + page.paragraphs.size() <= FilledUpCells + 3 * input.size(),
          "text comes from bytes");
  const std::string stored = box->TextRTF();
  box->SetTextRTF(stored);
  Require(box->TextRTF() == stored, "what is stored comes back");
}
