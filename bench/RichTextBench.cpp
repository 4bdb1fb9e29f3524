// A page between its RTF and its value, beside the plainest program that cuts the same bytes into runs. The
// page is in the manner of the classic rich edit controls. Each work runs in turn with its floor.
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Beside.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"

namespace {

using namespace richtext;

constexpr std::string_view Words[] = {
    "the",    "of",   "and",   "to",     "in",     "it",    "was",      "that",     "he",    "for",
    "with",   "his",  "they",  "this",   "have",   "from",  "one",      "had",      "not",   "what",
    "all",    "were", "when",  "there",  "said",   "each",  "about",    "them",     "then",  "many",
    "other",  "into", "more",  "people", "made",   "over",  "only",     "find",     "water", "long",
    "little", "very", "after", "words",  "called", "where", "caf\\'e9", "na\\'efve"};

// Makes paragraphs of words, a third of them in other formats.
class PageMaker {
 public:
  std::string Make(std::size_t bytes) {
    rtf_ =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
        "{\\f1\\froman\\fprq2\\fcharset0 Times New Roman;}{\\f2\\fnil\\fcharset0 Comic Sans MS;}"
        "{\\f3\\fmodern\\fprq1\\fcharset0 Courier New;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;"
        "\\red0\\green128\\blue0;\\red0\\green0\\blue255;\\red128\\green0\\blue128;}\r\n"
        "\\viewkind4\\uc1\\pard\\lang1033\\f0\\fs32 ";
    while (rtf_.size() < bytes) Paragraph();
    return std::move(rtf_) + "}\r\n";
  }

 private:
  int From(int first, int last) { return std::uniform_int_distribution(first, last)(random_); }

  void Paragraph() {
    constexpr std::array<std::string_view, 6> Formats = {"", "", "", "\\qc ", "\\qr ", "\\li720 "};
    const std::string_view format = Formats[static_cast<std::size_t>(From(0, 5))];
    if (!format.empty()) rtf_.append("\\pard").append(format);
    for (int stretches = From(2, 7); stretches > 0; --stretches) Stretch();
    rtf_ += format.empty() ? "\\par\r\n" : "\\par\r\n\\pard\\f0\\fs32 ";
  }

  void Stretch() {
    const int kind = From(0, 99);
    if (kind < 15) return Text("\\b ", "\\b0  ");
    if (kind < 27) return Text("\\i ", "\\i0  ");
    if (kind < 35) return Text("\\ul ", "\\ulnone  ");
    if (kind < 45) return Text("\\cf" + std::to_string(From(1, 4)) + ' ', "\\cf0  ");
    if (kind < 55)
      return Text("\\f" + std::to_string(From(1, 3)) + "\\fs" + std::to_string(From(10, 24) * 2) + ' ',
                  "\\f0\\fs32  ");
    Text("", " ");
  }

  void Text(std::string_view before, std::string_view after) {
    rtf_ += before;
    for (int words = From(3, 25); words > 0; --words) {
      rtf_ += Words[static_cast<std::size_t>(From(0, std::size(Words) - 1))];
      if (words > 1) rtf_ += ' ';
    }
    if (From(0, 19) == 0) rtf_ += " \\u8220?quoted\\u8221? \\u8212?";
    rtf_ += after;
  }

  std::mt19937 random_{7};
  std::string rtf_;
};

// The floor: the same bytes into text and runs, with nothing known of what the control words mean but where a
// format may begin.
class BareTokenizer {
 public:
  explicit BareTokenizer(std::string_view rtf) : rtf_(rtf) { text_.reserve(rtf.size()); }

  std::size_t Run() {
    while (at_ < rtf_.size()) Step();
    return text_.size() + runs_.size();
  }

 private:
  void Step() {
    switch (const char c = rtf_[at_]) {
      case '{':
        ++depth_;
        ++at_;
        return;
      case '}':
        --depth_;
        ++at_;
        return;
      case '\r':
      case '\n':
        ++at_;
        return;
      case '\\':
        return Word();
      default:
        text_ += static_cast<unsigned char>(c);
        ++at_;
    }
  }

  void Word() {
    const std::size_t start = ++at_;
    while (at_ < rtf_.size() && rtf_[at_] >= 'a' && rtf_[at_] <= 'z') ++at_;
    if (at_ == start) {
      text_ += static_cast<unsigned char>(rtf_[at_++]);
      return;
    }
    const std::string_view name = rtf_.substr(start, at_ - start);
    int number = 0;
    for (; at_ < rtf_.size() && rtf_[at_] >= '0' && rtf_[at_] <= '9'; ++at_)
      number = number * 10 + rtf_[at_] - '0';
    if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
    if (name == "u") {
      text_ += static_cast<char16_t>(number);
    } else if (runStart_ != text_.size() || name == "par") {
      runs_.push_back(text_.size() - runStart_);
      runStart_ = text_.size();
    }
  }

  std::string_view rtf_;
  std::size_t at_ = 0;
  int depth_ = 0;
  std::u16string text_;
  std::size_t runStart_ = 0;
  std::vector<std::size_t> runs_;
};

double TokenizeBare(const std::string& rtf) {
  return bench::SecondsOf([&] { benchmark::DoNotOptimize(BareTokenizer(rtf).Run()); });
}

void Parse(benchmark::State& state) {
  const std::string rtf = PageMaker().Make(static_cast<std::size_t>(state.range(0)));
  const auto work = [&] {
    Document document;
    return bench::SecondsOf([&] {
      document = ReadRtf(rtf);
      benchmark::ClobberMemory();
    });
  };
  bench::RunBeside(state, work, [&] { return TokenizeBare(rtf); });
}
BENCHMARK(Parse)
    ->Arg(1'000'000)
    ->Arg(10'000'000)
    ->Arg(100'000'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void Write(benchmark::State& state) {
  const std::string rtf = PageMaker().Make(static_cast<std::size_t>(state.range(0)));
  const Document document = ReadRtf(rtf);
  const auto work = [&] {
    std::string written;
    return bench::SecondsOf([&] {
      written = WriteRtf(document);
      benchmark::ClobberMemory();
    });
  };
  bench::RunBeside(state, work, [&] { return TokenizeBare(rtf); });
}
BENCHMARK(Write)->Arg(1'000'000)->Arg(10'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
