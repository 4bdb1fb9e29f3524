// Whatever a page is, the text box shows it in a while, in a wide and in a narrow window, and gives back what
// the reader made of it.
#include <ctime>

#include <QtWidgets/QApplication>

#include "fuzz/Require.h"
#include "richtext/box/RichTextBox.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"

namespace {

constexpr std::clock_t LongestShow = 3 * CLOCKS_PER_SEC;  // with the sanitizers, which take most of it

void Show(richtext::RichTextBox& box, int width) {
  box.resize(width, 300);
  box.document()->size();
  box.grab();
}

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
  static auto* const box = new richtext::RichTextBox;  // goes with the process, as the toolkit does
  const std::clock_t start = std::clock();
  box->SetTextRTF(input);
  Show(*box, 500);
  Show(*box, 60);
  Require(std::clock() - start < LongestShow, "it is shown in a while");
  const std::string stored = box->TextRTF();
  Require(richtext::WriteRtf(richtext::ReadRtf(stored)) == stored, "what is taken back is what is written");
  box->SetTextRTF(stored);
  Require(box->TextRTF() == stored, "what is stored comes back");
}
