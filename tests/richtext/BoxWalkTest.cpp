// A walk of random edits through the text box, beside a plain page that is told the same. `scripts/faults
// box` goes further, and from another place each day.
#include <random>

#include "richtext/textdocument/TextDocument.h"
#include "tests/richtext/BoxFixture.h"
#include "tests/richtext/PlainPage.h"

namespace richtext {
namespace {

constexpr int Sittings = 10, Steps = 50;

class BoxWalk : public BoxTest {
 protected:
  int Any(int below) { return static_cast<int>(chance_() % static_cast<unsigned>(below)); }
  CharacterFormat AnyLook() {
    CharacterFormat look;
    look.fontName = Any(4) ? "Arial" : "Courier";
    look.halfPoints = Any(4) ? 20 : 60;
    look.bold = Any(4) == 0;
    if (Any(5) == 0) look.link = "x:y";
    return look;
  }
  ParagraphFormat AnyFormat() {
    const ListFormat list{ListKind::Decimal, 1, 0, {}, u"."};
    ParagraphFormat formats[4];
    formats[1].alignment = Alignment::Center;
    formats[2].list = formats[3].list = list;
    formats[3].leftIndent = 720;
    formats[3].firstLineIndent = -360;
    return formats[Any(4)];
  }
  PlainPage AnyPage(int most) {
    PlainPage page;
    for (int paragraphs = 1 + Any(most); paragraphs > 0; --paragraphs) {
      for (int letters = Any(4); letters > 0; --letters) {
        page.signs.push_back({static_cast<char16_t>(u'a' + Any(26)), AnyLook()});
        if (Any(3) != 0) continue;
        page.signs.push_back({u'h', AnyLook()});
        page.signs.back().look.hidden = true;
      }
      CharacterFormat end = AnyLook();
      end.link.clear();
      page.signs.push_back({u'\n', end, AnyFormat()});
    }
    return page;
  }
  void Begin() {
    box.SetTextRTF(WriteRtf(AnyPage(4).ToDocument()));
    page_ = PlainPage(Taken());
    past_ = {page_};
    now_ = 0;
    from_ = to_ = 0;
    kept_.reset();
    Changes();
  }
  CharacterFormat InHand() const {
    return kept_ && from_ == to_ && kept_->first == from_ ? kept_->second : page_.InHand(from_, to_);
  }
  void Select(int anchor, int caret) {
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(caret, QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
    from_ = std::min(anchor, caret);
    to_ = std::max(anchor, caret);
  }
  void PutCaret(int at) { from_ = to_ = at; }
  // A key's edit: who goes on typing in a paragraph that it left empty means the format that was in hand.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers, const std::function<void()>& told) {
    const CharacterFormat inHand = InHand();
    const auto paragraph = page_.ParagraphOf(from_);
    Press(key, modifiers);
    told();
    Note();
    if (!changed_ || from_ != to_ || !page_.IsEmpty(from_) || page_.ParagraphOf(from_) != paragraph) return;
    kept_ = {from_, inHand};
    if (paragraph == 0 && page_.Length() > 1 && !box.document()->isRedoAvailable())
      page_.At(from_).look = inHand;
  }
  void Note() {
    const int changes = Changes();
    EXPECT_LE(changes, 1);
    changed_ = changes > 0;
    if (changed_) kept_.reset();
  }

  void Replace(const std::function<void()>& told) {
    page_.Remove(from_, to_);
    PutCaret(from_);
    told();
  }
  void Type() {
    const CharacterFormat inHand = InHand();
    Key(Qt::Key_X, {}, [&] { Replace([&] { page_.Insert(from_, {u'x', inHand}); }), PutCaret(from_ + 1); });
  }
  void Enter() {
    const CharacterFormat inHand = InHand();
    const ParagraphFormat format = page_.At(page_.EndAfter(to_)).format;
    Key(Qt::Key_Return, {}, [&] {
      const bool isItem = format.list.kind != ListKind::None;
      if (from_ == to_ && page_.IsEmpty(from_) && isItem) return Leave(from_);
      Replace([&] { page_.Part(from_, inHand); });
      page_.At(page_.EndAfter(from_ + 1)).format = format;
      PutCaret(from_ + 1);
    });
  }
  void Leave(int at) {
    ParagraphFormat& format = page_.At(page_.EndAfter(at)).format;
    format.list = {};
    format.leftIndent = std::max(format.leftIndent, 480);
    format.firstLineIndent = 0;
  }
  void Delete(bool back) {
    const Qt::KeyboardModifiers modifiers[] = {{}, back ? Qt::ShiftModifier : Qt::KeypadModifier};
    Key(back ? Qt::Key_Backspace : Qt::Key_Delete, modifiers[Any(2)], [&] {
      if (from_ != to_) return Replace([] {});
      const int step = back ? -1 : 1;
      const auto isHidden = [&](int at) { return page_.IsLetter(at) && page_.At(at).look.hidden; };
      while (isHidden(back ? from_ - 1 : from_)) PutCaret(from_ + step);
      if (back && page_.IsStart(from_) && page_.At(page_.EndAfter(from_)).format.list.kind != ListKind::None)
        return Leave(from_);
      const int letter = back ? from_ - 1 : from_;
      if (letter < 0 || letter >= page_.Length() - 1) return;
      page_.Remove(letter, letter + 1);
      PutCaret(letter);
    });
  }
  void PasteAny() {
    PlainPage clip = AnyPage(3);
    clip.Insert(0, {u'p', AnyLook()});
    const std::string rtf = WriteRtf(clip.ToDocument());
    Copy([&](QMimeData& data) { data.setData(QStringLiteral("text/rtf"), QByteArray::fromStdString(rtf)); });
    Key(Qt::Key_V, Qt::ControlModifier,
        [&] { Replace([&] { PutCaret(page_.Paste(from_, PlainPage(ReadRtf(rtf)))); }); });
  }
  // Where nothing is selected, it holds for what is typed next, whatever key that leads nowhere comes before.
  void Choose() {
    const bool isSize = Any(2) == 0, on = Any(2) == 0;
    const auto change = [&](CharacterFormat& look) {
      if (isSize)
        look.halfPoints = on ? 60 : 20;
      else
        look.bold = on;
    };
    const bool isCaret = from_ == to_, isEmpty = isCaret && page_.IsEmpty(from_);
    CharacterFormat inHand = InHand();
    change(inHand);
    if (isSize)
      box.SetSelFontSize(on ? 30 : 10);
    else
      box.SetSelBold(on);
    for (Sign* sign : page_.Held(from_, to_)) change(sign->look);
    Note();
    EXPECT_EQ(changed_, !isCaret);
    EXPECT_EQ(box.SelBold(), isCaret ? inHand.bold : Common(&CharacterFormat::bold));
    if (!isCaret) return;
    if (isEmpty) kept_ = {from_, inHand};
    if (isEmpty && Any(2) == 0) Press(Qt::Key_Home), Press(Qt::Key_End);
    Key(Qt::Key_X, {}, [&] { page_.Insert(from_, {u'x', inHand}), PutCaret(from_ + 1); });
  }
  // Of the letters that are selected, or of the ends where there is none.
  template <class Value>
  std::optional<Value> Common(Value CharacterFormat::*value) {
    if (from_ == to_) return InHand().*value;
    std::vector<Sign*> held = page_.Held(from_, to_);
    if (std::any_of(held.begin(), held.end(), [](const Sign* sign) { return !PlainPage::IsEnd(*sign); }))
      std::erase_if(held, [](const Sign* sign) { return PlainPage::IsEnd(*sign); });
    for (const Sign* sign : held)
      if (sign->look.*value != held.front()->look.*value) return std::nullopt;
    return held.front()->look.*value;
  }
  // Undo goes to a page that has been, and redo to one that it left: how many edits a step is, is the
  // toolkit's affair.
  void Walk(int step) {
    const int before = now_;
    Key(Qt::Key_Z, step < 0 ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier, [&] {
      page_ = PlainPage(Taken());
      from_ = box.textCursor().selectionStart(), to_ = box.textCursor().selectionEnd();
      if (page_ == past_[static_cast<std::size_t>(before)]) return;
      for (int at = before + step; at >= 0 && at < static_cast<int>(past_.size()); at += step)
        if (past_[static_cast<std::size_t>(at)] == page_) {
          now_ = at;
          return;
        }
      EXPECT_EQ(Dump(past_[static_cast<std::size_t>(before)].ToDocument()), Dump(page_.ToDocument()))
          << "a page never seen";
    });
  }
  void Step() {
    Select(Any(page_.Length()), Any(3) ? box.textCursor().position() : Any(page_.Length()));
    if (Any(3) == 0) Select(to_, Any(2) ? to_ : from_);
    switch (const int kind = Any(12)) {
      case 0:
      case 1:
        return Walk(kind ? -1 : 1);
      case 2:
      case 3:
      case 4:
        Type();
        break;
      case 5:
      case 6:
        Delete(kind == 5);
        break;
      case 7:
      case 8:
        Enter();
        break;
      case 9:
        PasteAny();
        break;
      default:
        Choose();
    }
    if (page_ == past_[static_cast<std::size_t>(now_)]) return;
    past_.resize(static_cast<std::size_t>(++now_));
    past_.push_back(page_);
  }
  void Compare() {
    ASSERT_EQ(Dump(Taken()), Dump(page_.ToDocument()));
    ASSERT_EQ(PlainPage(Taken()), page_);
    ASSERT_EQ(WriteRtf(Join(box.Copy())), box.TextRTF());
    const QTextCursor cursor = box.textCursor();
    ASSERT_EQ(std::pair(cursor.selectionStart(), cursor.selectionEnd()), std::pair(from_, to_));
    ASSERT_EQ(box.SelBold(), Common(&CharacterFormat::bold));
    const std::optional<int> size = Common(&CharacterFormat::halfPoints);
    ASSERT_EQ(box.SelFontSize(), size ? std::optional(*size / 2.0) : std::nullopt);
  }

  std::mt19937 chance_{static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed())};
  PlainPage page_;
  int from_ = 0, to_ = 0;  // what is selected
  bool changed_ = false;
  std::optional<std::pair<int, CharacterFormat>> kept_;
  std::vector<PlainPage> past_;
  int now_ = 0;
};

TEST_F(BoxWalk, TheBoxDoesWhatAPlainPageDoes) {
  for (int sitting = 0; sitting < Sittings; ++sitting) {
    Begin();
    const PlainPage first = page_;
    for (int step = 0; step < Steps; ++step) {
      SCOPED_TRACE("sitting " + std::to_string(sitting) + ", step " + std::to_string(step));
      const std::string before = Dump(page_.ToDocument());
      Step();
      SCOPED_TRACE(before);
      Compare();
      if (HasFailure()) return;
    }
    while (box.document()->isUndoAvailable()) box.undo();
    ASSERT_EQ(Dump(Taken()), Dump(first.ToDocument())) << "undone to the start";
  }
}

// Whatever is done to a table and to frames, what is stored is shown again as it is, and the copy for the log
// is the same.
TEST_F(BoxWalk, TablesAndFramesHoldAndStandEveryEdit) {
  for (const Example& example : ExamplesOf("rtf.txt"))
    if (example.dump.find('$') != std::string::npos) ExpectHeld(example.source);
  const std::string row = R"(\trowd\clvmgf\cellx99\cellx198\pard\intbl\qc a\cell\par b\par\cell\row )";
  const std::string frame = R"(\pard x\par\box\brdrdb\brsp75 y\par\sa200 z\par\brdrb\brdrs u\par\pard )";
  const std::string framed = R"(\trowd\cellx99\pard\intbl\box\brdrs\brsp75{\listtext 1.}v\par w\cell\row )";
  const std::string table = Page(row + row + frame + framed + row);
  const std::function<void()> edits[] = {[&] { Press(Qt::Key_X); },
                                         [&] { Press(Qt::Key_Return); },
                                         [&] { Press(Qt::Key_Backspace); },
                                         [&] { Press(Qt::Key_Delete); },
                                         [&] { Press(Qt::Key_Tab); },
                                         [&] { Press(Qt::Key_Backspace, Qt::ControlModifier); },
                                         [&] { Press(Qt::Key_Delete, Qt::ControlModifier); },
                                         [&] { box.undo(); },
                                         [&] { box.redo(); },
                                         [&] { box.SetSelBold(true); },
                                         [&] { Press(Any(2) ? Qt::Key_C : Qt::Key_X, Qt::ControlModifier); },
                                         [&] { Press(Qt::Key_V, Qt::ControlModifier); }};
  for (int sitting = 0; sitting < 20; ++sitting) {
    ExpectHeld(table);
    EXPECT_EQ(Text(), "a\t\nb\n\t\na\t\nb\n\t\nx\ny\nz\nu\nv\nw\t\na\t\nb\n\t");
    for (int step = 0; step < 20; ++step) {
      box.SetSelStart(Any(static_cast<int>(Text().size()) + 1));
      box.SetSelLength(Any(3) ? 0 : Any(6));
      edits[Any(std::size(edits))]();
      const std::string stored = box.TextRTF();
      ASSERT_EQ(WriteRtf(Join(box.Copy())), stored);
      ASSERT_EQ(WriteRtf(ReadRtf(stored)), stored);
      RichTextBox other;
      other.SetTextRTF(stored);
      ASSERT_EQ(other.TextRTF(), stored);
      ASSERT_EQ(Text(), other.Text().toStdString()) << stored;
    }
    while (box.document()->isUndoAvailable()) box.undo();
    ASSERT_EQ(WriteRtf(ReadRtf(box.TextRTF())), WriteRtf(ReadRtf(table))) << "undone to the start";
  }
}

}  // namespace
}  // namespace richtext
