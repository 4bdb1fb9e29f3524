// A page between its value and the text box, beside a fill of the toolkit's document with the same runs and
// nothing else; and what a person waits for when a page is shown.
#include <benchmark/benchmark.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>

#include "bench/Beside.h"
#include "richtext/box/RichTextBox.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/TextDocument.h"

namespace {

using namespace richtext;

// Paragraphs of runs in turning formats, in the manner of a page written by hand.
std::string PageOf(std::size_t bytes) {
  constexpr std::string_view Formats[] = {"\\b ",        "\\b0\\i ",      "\\i0\\cf1 ", "\\cf0\\fs40 ",
                                          "\\fs32\\ul ", "\\ulnone\\f1 ", "\\f0 "};
  std::string rtf =
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}{\\colortbl "
      ";\\red255\\green0\\blue0;}\\f0\\fs32 ";
  for (std::size_t i = 0; rtf.size() < bytes; ++i) {
    rtf += Formats[i % std::size(Formats)];
    rtf += "the quick brown fox jumps over the lazy dog and is back before it rains";
    if (i % 5 == 4) rtf += "\\par\r\n";
  }
  return rtf + "}\r\n";
}

// The page's runs as the toolkit's own values.
struct BareRuns {
  explicit BareRuns(const Document& page) {
    for (const CharacterFormat& format : page.formats) formats.push_back(ToTextFormat(format));
    for (const ParagraphFormat& format : page.paragraphFormats) blocks.push_back(ToBlockFormat(format));
    std::size_t at = 0;
    for (const Run& run : page.runs) {
      texts.push_back(QString::fromUtf16(page.text.data() + at, run.length));
      at += run.length;
    }
  }
  std::vector<QTextCharFormat> formats;
  std::vector<QTextBlockFormat> blocks;
  std::vector<QString> texts;
};

void FillBare(const Document& page, const BareRuns& bare, QTextDocument& box) {
  box.setUndoRedoEnabled(false);
  QTextCursor cursor(&box);
  cursor.beginEditBlock();
  std::size_t run = 0;
  for (const Paragraph& paragraph : page.paragraphs) {
    if (&paragraph != page.paragraphs.data())
      cursor.insertBlock(bare.blocks[paragraph.format], bare.formats[paragraph.markFormat]);
    for (std::uint32_t written = 0; written < paragraph.length; written += page.runs[run++].length)
      cursor.insertText(bare.texts[run], bare.formats[page.runs[run].format]);
  }
  cursor.endEditBlock();
}

void ValueIntoBox(benchmark::State& state) {
  const std::string rtf = PageOf(static_cast<std::size_t>(state.range(0)));
  const Document page = ReadRtf(rtf);
  const BareRuns bare(page);
  bench::RunBeside(
      state,
      [&] {
        QTextDocument box;
        return bench::SecondsOf([&] { FillDocument(page, box); });
      },
      [&] {
        QTextDocument box;
        return bench::SecondsOf([&] { FillBare(page, bare, box); });
      });
}
BENCHMARK(ValueIntoBox)->Arg(1'000'000)->Arg(10'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

// From the page's bytes to the last line's place and the first lines on the screen.
void ShowPage(benchmark::State& state, const std::string& rtf) {
  RichTextBox box;
  box.resize(500, 600);
  box.show();
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    box.SetTextRTF({});
    QCoreApplication::processEvents();
    state.ResumeTiming();
    box.SetTextRTF(rtf);
    box.document()->size();
    box.repaint();
  }
}

void ShowLongPage(benchmark::State& state) {
  ShowPage(state, PageOf(1'000'000));
}
BENCHMARK(ShowLongPage)->Unit(benchmark::kMillisecond);

void ShowEmoticons(benchmark::State& state) {
  std::mt19937 random(3);
  Document page = EmptyDocument();
  page.runs = {{50, page.paragraphs[0].markFormat}};
  page.text.assign(50, u'\ufffc');
  page.paragraphs[0].length = 50;
  for (int i = 0; i < 50; ++i) {
    QImage image(24 + i, 24 + i, QImage::Format_ARGB32);
    for (int at = 0; at < image.width() * image.height(); ++at)
      image.setPixel(at % image.width(), at / image.width(), 0xff000000 | (random() & 0x3f3f3f));
    page.pictures.push_back(FromImage(image));
  }
  ShowPage(state, WriteRtf(page));
}
BENCHMARK(ShowEmoticons)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const QApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
