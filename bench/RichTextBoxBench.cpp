// A page between its value and the text box, beside a fill of the toolkit's document with the same runs and
// nothing else; and what a person waits for when a page is shown.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QtCore/QMimeData>
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

void ShowTables(benchmark::State& state) {
  std::string rtf = "{\\rtf1\\trowd\\trbrdrh\\brdrs\\cellx2000\\cellx4500\\cellx7000\\pard\\intbl ";
  while (rtf.size() < 1'000'000)
    rtf += "a few words\\cell some more words in here\\cell and the third\\cell\\row ";
  ShowPage(state, rtf + "\\pard the end}");
}
BENCHMARK(ShowTables)->Unit(benchmark::kMillisecond);

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

QImage Photo(int width, int height) {
  std::mt19937 random(5);
  QImage photo(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      photo.setPixel(x, y, qRgb(x / 16 + int(random() % 4), y / 12 + int(random() % 4), (x + y) / 28));
  return photo;
}

// Until the window goes on, and until the page could be stored.
void PasteAPhoto(benchmark::State& state) {
  const QImage photo = Photo(4000, 3000);
  RichTextBox box;
  box.resize(500, 600);
  box.show();
  double file = 0;
  for ([[maybe_unused]] auto iteration : state) {
    box.SetTextRTF({});
    state.SetIterationTime(bench::SecondsOf([&] {
      box.InsertBitmap(photo);
      box.repaint();
    }));
    file = bench::SecondsOf([&] { box.TextRTF(); });
  }
  state.counters["file_ms"] = file * 1e3;
}
BENCHMARK(PasteAPhoto)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

// A bitmap that is no file.
void CopyABitmap(benchmark::State& state) {
  const QImage photo = Photo(1600, 1200).convertToFormat(QImage::Format_BGR888);
  Picture bitmap{PictureKind::Dib, std::string("\x28\0\0\0\x40\x06\0\0\xb0\x04\0\0\x01\0\x18\0", 16),
                 "\\dibitmap0", 24'000, 18'000};
  bitmap.bytes.resize(40);
  bitmap.bytes.append(reinterpret_cast<const char*>(photo.constBits()),
                      static_cast<std::size_t>(photo.sizeInBytes()));
  Document page = EmptyDocument();
  page.runs = {{1, page.paragraphs[0].markFormat}};
  page.text.assign(1, u'\ufffc');
  page.paragraphs[0].length = 1;
  page.pictures = {bitmap};
  RichTextBox box;
  box.SetTextRTF(WriteRtf(page));
  box.selectAll();
  for ([[maybe_unused]] auto iteration : state) box.copy();
}
BENCHMARK(CopyABitmap)->Unit(benchmark::kMillisecond);

// The line of the caret is drawn, at the end of a long list and at the end of as many plain paragraphs; at
// the start of both.
void Blink(benchmark::State& state) {
  const auto show = [](RichTextBox& box, const std::string& format, bool atEnd) {
    std::string rtf = "{\\rtf1" + format;
    for (int i = 0; i < 20'000; ++i) rtf += " item\\par";
    box.resize(500, 600);
    box.show();
    box.SetTextRTF(rtf + '}');
    box.SetSelStart(atEnd ? 1 << 30 : 0);
    box.ensureCursorVisible();
    QCoreApplication::processEvents();
  };
  RichTextBox list, plain;
  show(list, R"({\*\pn\pnlvlbody\pndec{\pntxta .}}\fi-360\li720)", state.range(0) == 1);
  show(plain, {}, true);
  const auto draw = [](RichTextBox& box) {
    return bench::SecondsOf([&] { box.viewport()->repaint(box.cursorRect().adjusted(-40, 0, 40, 0)); });
  };
  bench::RunBeside(
      state, [&] { return draw(list); }, [&] { return draw(plain); });
}
BENCHMARK(Blink)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);

// A letter in the middle of a page that is one paragraph, of soft line breaks or of words, to its drawing;
// and the caret's blink there.
void TypeInOneParagraph(benchmark::State& state) {
  const std::string line = "the quick brown fox jumps over the lazy dog and is back before it";
  std::string rtf = "{\\rtf1 ";
  while (rtf.size() < static_cast<std::size_t>(state.range(0)))
    rtf += line + (state.range(1) == 1 ? "\\line " : " ");
  RichTextBox box;
  box.resize(500, 600);
  box.show();
  box.SetTextRTF(rtf + '}');
  box.SetSelStart(static_cast<int>(state.range(0) / 2));
  const auto draw = [&] { box.viewport()->repaint(box.cursorRect().adjusted(-40, 0, 40, 0)); };
  for ([[maybe_unused]] auto iteration : state) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QCoreApplication::sendEvent(&box, &key);
    draw();
  }
  state.counters["blink_ms"] = bench::SecondsOf(draw) * 1e3;
}
BENCHMARK(TypeInOneParagraph)
    ->ArgsProduct({{15'000, 100'000, 200'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

double MegabytesOf(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with(key)) return std::stod(line.substr(key.size() + 1)) / 1024;
  std::abort();
}

void PasteFiftyPictures(benchmark::State& state) {
  std::mt19937 random(7);
  std::string rtf = "{\\rtf1 ";
  for (int i = 0; i < 50; ++i) {
    std::string bytes(1'000'000, ' ');
    std::generate(bytes.begin(), bytes.end(), [&] { return "0123456789abcdef"[random() % 16]; });
    rtf += "{\\pict\\pngblip\\picwgoal900\\pichgoal900 " + bytes + bytes + '}';
  }
  QMimeData offer;
  offer.setData(QStringLiteral("text/rtf"), QByteArray::fromStdString(std::exchange(rtf, {})));
  struct Box : RichTextBox {
    using RichTextBox::insertFromMimeData;
  } box;
  malloc_trim(0);  // what an earlier benchmark has left would be taken first
  const double before = MegabytesOf("VmRSS:");
  for ([[maybe_unused]] auto iteration : state) {
    std::ofstream("/proc/self/clear_refs") << 5;  // the peak begins anew
    box.insertFromMimeData(&offer);
  }
  state.counters["peak_mb"] = MegabytesOf("VmHWM:") - before;
  state.counters["rest_mb"] = MegabytesOf("VmRSS:") - before;
}
BENCHMARK(PasteFiftyPictures)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const QApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
