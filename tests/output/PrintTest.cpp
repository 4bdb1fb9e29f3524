#include <cmath>
#include <map>

#include "look/Progress.h"
#include "output/PrintDialog.h"
#include "output/PrintRange.h"
#include "output/frmPrintRTF.h"
#include "output/modPrint.h"
#include "richtext/box/Paper.h"
#include "tests/editor/OpenBook.h"

namespace {

using fixture::Texts;
using Sheets = std::vector<Texts>;

struct Drawn {
  std::size_t sheet;
  QString text;
  QPointF at;  // dots: where it begins on its line
  QRectF place;
  QFont font;
  QColor color;
};

class RecordingEngine : public QPaintEngine {
 public:
  RecordingEngine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& changed) override {
    if (changed.state() & DirtyPen) pen_ = changed.pen();
    if (changed.state() & DirtyTransform) dots_ = changed.transform();
  }
  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QRectF place(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    drawn.push_back({sheet, item.text(), dots_.map(at), dots_.mapRect(place), item.font(), pen_.color()});
  }
  void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override {
    pictures.push_back(dots_.mapRect(place));
  }
  void drawLines(const QLineF* lines, int count) override {
    for (int i = 0; i < count; ++i) borders.emplace_back(sheet, dots_.map(lines[i]));
  }
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  Type type() const override { return User; }

  std::vector<Drawn> drawn;
  std::vector<QRectF> pictures;
  std::vector<std::pair<std::size_t, QLineF>> borders;  // by sheet
  std::size_t sheet = 0;

 private:
  QPen pen_;
  QTransform dots_;
};

// A printer that keeps what is drawn on it and where, sheet by sheet.
class Printed : public QPaintDevice {
 public:
  explicit Printed(QSizeF inches = {8, 10.5}) : inches_(inches) {}

  QPaintEngine* paintEngine() const override { return &engine_; }
  // `whole`: what it says at the end of whether all has arrived.
  std::unique_ptr<richtext::Paper> Paper(bool whole = true) { return std::make_unique<Sheet>(*this, whole); }

  const std::vector<Drawn>& All() const { return engine_.drawn; }
  const std::vector<QRectF>& Pictures() const { return engine_.pictures; }
  const auto& Borders() const { return engine_.borders; }
  std::function<void()> onSheet;
  bool withdrawn = false;
  // The lines of each sheet as a person reads them, from left to right.
  Sheets Lines() const {
    std::map<std::pair<std::size_t, long>, std::multimap<double, std::string>> lines;
    for (const Drawn& drawn : All())
      lines[{drawn.sheet, std::lround(drawn.at.y())}].emplace(drawn.at.x(), drawn.text.toStdString());
    Sheets sheets(engine_.sheet + 1);
    for (const auto& [place, parts] : lines) {
      std::string& line = sheets[place.first].emplace_back();
      for (const auto& part : parts) line += part.second;
    }
    return sheets;
  }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    if (metric == PdmWidth) return static_cast<int>(inches_.width() * DotsPerInch);
    if (metric == PdmHeight) return static_cast<int>(inches_.height() * DotsPerInch);
    if (metric == PdmDevicePixelRatio) return 1;
    if (metric == PdmDevicePixelRatioScaled) return static_cast<int>(devicePixelRatioFScale());
    return DotsPerInch;
  }

 private:
  static constexpr int DotsPerInch = 300;

  struct Sheet : richtext::Paper {
    Sheet(Printed& printer, bool isWhole) : device(printer), whole(isWhole) {}
    QPaintDevice& Device() override { return device; }
    QSizeF Area() const override { return device.inches_ * 72.0; }
    bool NextSheet() override {
      ++device.engine_.sheet;
      if (device.onSheet) device.onSheet();
      return true;
    }
    bool IsWhole() const override { return whole; }
    void GiveUp() override { isGivenUp = device.paintEngine()->isActive(); }
    void Withdraw() override { device.withdrawn = isGivenUp && !device.paintEngine()->isActive(); }

    Printed& device;
    bool whole, isGivenUp = false;
  };

  QSizeF inches_;
  mutable RecordingEngine engine_;
};

class Print : public fixture::OpenBook {
 protected:
  Print() {
    SetPrintAnswerer([this](const PrintRequest& request) {
      asked = request;
      return std::move(answer);
    });
  }
  ~Print() override { SetPrintAnswerer({}); }

  Sheets PrintOn(Printed& printer, PrintChoice choice, int from = 0, int to = 0, bool whole = true) {
    answer.emplace(PrintOrder{choice, from, to, printer.Paper(whole), "the attic's"});
    PrintJournal();
    EXPECT_EQ(look::The<frmPrintRTF>().txtM->Text(), QString()) << "no page stays behind";
    return printer.Lines();
  }
  Texts FirstSheet(PrintChoice choice, int from = 0, int to = 0) {
    Printed printer;
    return PrintOn(printer, choice, from, to)[0];
  }

  std::optional<PrintOrder> answer;
  PrintRequest asked;
};

TEST_F(Print, PagesAreOnePlainTextInTheJournalsFont) {
  Load(AddJournal(
      {"title", "{\\fs80\\b\\i big}\\par two", "", "\\deftab2000{\\v hidden}last\\line\\tab line"}));
  GoNextPage();
  Printed printer;
  EXPECT_EQ(PrintOn(printer, PrintChoice::All),
            (Sheets{{"title", "day 40001", "big", "two", "day 40002", "day 40003", "last", "line"}}));
  for (const Drawn& drawn : printer.All()) {
    EXPECT_EQ(drawn.font.families(), QStringList(QStringLiteral("DejaVu Serif")));
    EXPECT_EQ(drawn.font.pointSizeF(), 16);
    EXPECT_FALSE(drawn.font.bold() || drawn.font.italic());
    EXPECT_EQ(drawn.color, QColor(Qt::black));
  }
  EXPECT_NEAR(printer.All().back().at.x(), 150, 1) << "the tab stop of plain text";
  // The empty page has a line of its own between two dates.
  const double pitch = printer.All()[1].at.y() - printer.All()[0].at.y();
  EXPECT_NEAR(printer.All()[5].at.y() - printer.All()[4].at.y(), 2 * pitch, 1);
}

// The bookcase's row is what counts: a page that was added since the journal was opened is out of reach.
TEST_F(Print, RangesCountFromTheTitlePageToTheLastThatTheBookcaseKnows) {
  Load(AddJournal({"title", "one", "two"}));
  Pages.push_back(Pages.back());
  PageCount = 3;
  GoNextPage();
  EXPECT_EQ(FirstSheet(PrintChoice::Pages, 0, 0), (Texts{"title"}));
  EXPECT_EQ(FirstSheet(PrintChoice::Pages, 1, 2), (Texts{"day 40001", "one", "day 40002", "two"}));
  EXPECT_EQ(FirstSheet(PrintChoice::All).size(), 5U);
  EXPECT_EQ(std::tuple(asked.selection, asked.highest, asked.from, asked.to), std::tuple(false, 2, 1, 1));
  Journals.back().PageCount = 9;  // of a file that has gone since
  EXPECT_EQ(FirstSheet(PrintChoice::All).size(), 7U);
  EXPECT_EQ(answers.texts(), Texts());
}

TEST_F(Print, ASelectionIsLiveAndPagesAreAsStored) {
  const std::int32_t row = Begin({"stored"});
  QObject::connect(&window(), &frmJournal::PrintRequested, &PrintJournal);
  const std::string before = BytesOf(row);
  Type("un");
  text().selectAll();
  Press("btnPrint");  // cancelled
  EXPECT_TRUE(asked.selection);
  EXPECT_EQ(FirstSheet(PrintChoice::Selection), Texts{"unstored"});
  EXPECT_EQ(FirstSheet(PrintChoice::Pages, 0, 0), Texts{"stored"});
  EXPECT_EQ(PageDirty, True);
  EXPECT_EQ(BytesOf(row), before);
  EXPECT_EQ(text().SelLength(), 8);
}

TEST_F(Print, ASelectionKeepsItsFormats) {
  Load(AddJournal(
      {"before\\par {\\fs20 ten}{\\fs60\\b  thirty}\\par "
       "{\\pntext 4.\\tab}{\\*\\pn\\pnlvlbody\\pndec\\pnstart4{\\pntxta .}}\\fi-360\\li720 four\\par "
       "{\\pntext 5.\\tab}five {\\v secret}end\\par "
       "{\\pntext 6.\\tab}six"}));
  text().SetSelStart(5);
  text().SetSelLength(static_cast<int>(text().Text().indexOf(u"six")) - 5);
  Printed printer;
  EXPECT_EQ(PrintOn(printer, PrintChoice::Selection), (Sheets{{"e", "ten thirty", "4.four",
                                                               "5.five \u034F"
                                                               "end"}}));
  EXPECT_EQ(printer.All()[1].font.pointSizeF(), 10);
  EXPECT_EQ(printer.All()[2].font.pointSizeF(), 30);
  EXPECT_TRUE(printer.All()[2].font.bold());
}

// In the first line of an indented paragraph, in that of a hanging one behind its tab, and in a later line.
TEST_F(Print, NoPictureIsCutOff) {
  folder.WritePicture("a.png");
  const std::string bytes = QByteArray::fromStdString(folder.Read("a.png")).toHex().toStdString();
  const std::string wide = "{\\pict\\pngblip\\picwgoal30000\\pichgoal900 " + bytes + "}";
  Load(AddJournal({"\\fi2000 " + wide + "\\par\\li900\\ri700\\fi-900 " + wide + "\\par\\fi1000 a\\tab " +
                   wide + "\\par\\fi-900 1.\\tab " + wide}));
  text().selectAll();
  Printed printer;
  PrintOn(printer, PrintChoice::Selection);
  EXPECT_EQ(printer.Pictures().size(), 4U);
  for (const QRectF& place : printer.Pictures()) {
    EXPECT_GE(place.left(), 0);
    EXPECT_LE(place.right(), printer.width());
  }
  Load(AddJournal(
      {"\\box\\brdrtriple\\brdrw60\\brsp400 {\\pict\\pngblip\\picwgoal900\\pichgoal30000 " + bytes + "}"}));
  text().selectAll();
  Printed framed;
  PrintOn(framed, PrintChoice::Selection);
  ASSERT_FALSE(framed.Borders().empty());
  for (const auto& [sheet, line] : framed.Borders()) EXPECT_LE(line.y2(), framed.height()) << "nor its frame";
}

// A narrow window shows a smaller indent than paper has room for.
TEST_F(Print, PaperHasTheIndentsOfThePage) {
  folder.WritePicture("a.png");
  const std::string bytes = QByteArray::fromStdString(folder.Read("a.png")).toHex().toStdString();
  Load(AddJournal({"\\li5040 {\\pict\\pngblip\\picwgoal300\\pichgoal300 " + bytes + "}"}));
  text().selectAll();
  Printed printer;
  PrintOn(printer, PrintChoice::Selection);
  ASSERT_EQ(printer.Pictures().size(), 1U);
  EXPECT_NEAR(printer.Pictures().front().left() / printer.Pictures().front().width(), 5040 / 300.0, 1.5);
}

// A row of two lines goes onto one sheet, and each sheet is filled with rows below the table's head, whose
// numbers it has; also where there are so many rows that the last stand in columns.
TEST_F(Print, RowsAreNotParted) {
  std::string page =
      "before\\par\\trowd\\trhdr\\cellx9000\\pard\\intbl"
      "{\\pntext 4.\\tab}{\\*\\pn\\pnlvlbody\\pndec\\pnstart4{\\pntxta .}}Head\\cell\\row ";
  for (int i = 0; i < 1100; ++i)
    page += "\\trowd\\cellx9000\\cellx30000\\pard\\intbl a\\par b\\cell c\\cell\\row ";
  Load(AddJournal({page + "\\pard after"}));
  text().selectAll();
  Printed printer({4.001, 5.031});
  const Sheets sheets = PrintOn(printer, PrintChoice::Selection);
  ASSERT_GT(sheets.size(), 3U);
  std::map<QString, std::map<std::size_t, int>> letters;
  for (const Drawn& drawn : printer.All()) {
    ++letters[drawn.text][drawn.sheet];
    EXPECT_LE(drawn.place.bottom(), printer.height() + 1);
    EXPECT_LE(drawn.place.right(), printer.width());
    const bool isSecond = drawn.text == QStringLiteral("c") && drawn.sheet < 100;
    EXPECT_TRUE(!isSecond || drawn.place.left() > printer.width() / 4);
  }
  EXPECT_EQ(letters[QStringLiteral("a")], letters[QStringLiteral("b")]);
  EXPECT_EQ(letters[QStringLiteral("a")], letters[QStringLiteral("c")]);
  EXPECT_EQ(letters[QStringLiteral("a")][1], letters[QStringLiteral("a")][2]);
  for (std::size_t sheet = 0; sheet < sheets.size(); ++sheet) {
    EXPECT_EQ(letters[QStringLiteral("Head")][sheet], 1);
    EXPECT_EQ(sheets[sheet][sheet == 0 ? 1 : 0], "4.Head");
  }
}

// The lines of its cells end at different heights, so that no cut goes between them all, and one begins above
// its cell, whose lines are told to be low.
TEST_F(Print, ARowThatIsHigherThanASheetLosesNoLine) {
  std::string row = "\\trowd\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl";
  for (const std::string line : {"\\fs20 a", "\\fs34 b", "\\sl-100 c"}) {
    for (int i = 1; i < 90; ++i) row += line + "\\par";
    row += line + "\\cell";
  }
  Load(AddJournal({"{\\fs2 before}\\par " + row + "\\row\\pard after"}));
  text().selectAll();
  Printed printer({4.001, 5.031});
  PrintOn(printer, PrintChoice::Selection);
  std::map<QString, int> letters;
  for (const Drawn& drawn : printer.All()) {
    ++letters[drawn.text];
    EXPECT_LE(drawn.at.y(), printer.height());
  }
  for (const char16_t letter : {u'a', u'b', u'c'}) EXPECT_EQ(letters[QString(QChar(letter))], 90);
}

TEST_F(Print, WhatCannotBePrintedIsTold) {
  Load(AddJournal({"text", "more"}));
  EXPECT_EQ(FirstSheet(PrintChoice::Selection), Texts());
  EXPECT_EQ(answers.last().find("No text selected -- "), 0u);
  Printed jammed;
  PrintOn(jammed, PrintChoice::All, 0, 0, false);
  EXPECT_EQ(answers.last(), "Error:The device reported an error: the attic's");
}

// From one second on a window stands there that cancels, and no other one hears a key.
TEST_F(Print, ALongOneCanBeCancelledAndIsTakenBack) {
  Begin({"title", "page"});
  text().SetText(QString(u"line\n"_qs).repeated(5000));
  text().selectAll();
  Printed printer;
  printer.onSheet = [] {
    QThread::msleep(20);
    auto* window = qobject_cast<look::frmProgress*>(QApplication::activeModalWidget());
    if (!window) return;
    QTimer::singleShot(0, window, [window] { QTest::keyClick(window->cmdCancel, Qt::Key_Space); });
  };
  PrintOn(printer, PrintChoice::Selection);
  EXPECT_TRUE(printer.withdrawn);
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_EQ(answers.texts(), Texts()) << "no failure";
}

// The text is laid out in pieces. Where one ends, no line is lost, printed twice or moved, also within a
// paragraph that is too long for one; and a frame goes on.
TEST_F(Print, PiecesCannotBeSeen) {
  constexpr std::size_t paragraphs = 1500;
  constexpr double spaceAfter = 25;  // 120 twips in dots
  std::string page = "\\sa120\\brdrt\\brdrs\\brdrw20\\brdrl\\brdrs\\brdrw20\\brdrb\\brdrs\\brdrw20 ";
  for (std::size_t i = 1; i <= paragraphs; ++i)
    page += "a short paragraph, number " + std::to_string(i) + "\\par ";
  for (int i = 0; i < 11'000; ++i) page += "some words that fill a line ";
  Load(AddJournal({page + "\\par the end"}));
  text().selectAll();
  Printed printer({4.001, 5.031});
  QString printed;
  for (const Texts& sheet : PrintOn(printer, PrintChoice::Selection))
    for (const std::string& line : sheet) printed += QString::fromStdString(line);
  EXPECT_EQ(printed.remove(u' '), text().Text().remove(u'\n').remove(u' '));
  const auto& all = printer.All();
  const double pitch = all[1].at.y() - all[0].at.y();
  for (std::size_t i = 1; i + 1 < all.size(); ++i) {
    const double step = all[i].sheet == all[i - 1].sheet ? all[i].at.y() - all[i - 1].at.y() : 0;
    const double expected = i <= paragraphs ? pitch : pitch - spaceAfter;
    ASSERT_TRUE(step == 0 || std::abs(step - expected) < 1) << i << ": " << step;
    ASSERT_TRUE(all[i].place.top() >= 0 && all[i].place.bottom() <= printer.height() + 1) << i;
  }
  double bottom = 0;
  int across = 0;
  for (const auto& [sheet, line] : printer.Borders()) {
    across += line.dy() == 0 ? 1 : 0;
    if (line.dy() == 0) continue;
    ASSERT_TRUE(line.y1() < 100 || std::abs(line.y1() - bottom) < 1) << "sheet " << sheet;
    bottom = line.y2();
  }
  EXPECT_EQ(across, 2);
}

TEST_F(Print, TheDialogsRangeBeginsAtPageNullAndIsPutInOrder) {
  PrintRange range({false, 7, 3, 4}, nullptr);
  EXPECT_TRUE(range.optAll->isChecked());
  EXPECT_EQ(range.spnFrom->value() + 10 * range.spnTo->maximum(), 73);
  range.spnTo->setValue(0);
  const PrintOrder order = range.Order();
  EXPECT_EQ(std::tuple(order.choice, order.from, order.to), std::tuple(PrintChoice::Pages, 0, 3));
}

}  // namespace
