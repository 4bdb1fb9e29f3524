// The journal window over a scratch folder, driven as a person drives it.
#pragma once

#include "editor/OpenJournal.h"
#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/Toolbar.h"
#include "editor/frmJournal.h"
#include "platform/dialogs/FontDialog.h"
#include "richtext/box/RichTextBox.h"
#include "store/JournalFile.h"
#include "store/PageCipher.h"
#include "tests/support/Clock.h"
#include "tests/support/Windows.h"

namespace fixture {

inline std::string Rtf(std::string_view text) {
  return "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 Verdana;}}\\f0\\fs32 " + std::string(text) + "}";
}

class OpenBook : public Windows {
 protected:
  OpenBook() {
    MasterPassword = "xAyB";
    PageShift = 71;
    chkGotoLastPage = 0;
  }

  // One more row of the bookcase; its file is "j" and the row's number. Returns the row.
  std::int32_t AddJournal() {
    Journals.resize(static_cast<std::size_t>(++JournalCount) + 1);
    Journals.back().FileName = FileOf(JournalCount);
    Journals.back().FontName = "DejaVu Serif";
    Journals.back().FontSize = 16;
    return JournalCount;
  }
  // The same with a file of these pages, dated from day 40000 on; an empty text is a page never stored.
  std::int32_t AddJournal(const Texts& texts) {
    std::vector<JournalPage> pages;
    for (const std::string& page : texts) {
      const std::string plain = page.empty() ? "" : Rtf(page);
      std::string body(plain.size() * 2, '\0');
      store::Encipher(plain, PageShift, body.data());
      pages.push_back({std::move(body), 40000.0 + static_cast<double>(pages.size())});
    }
    const std::int32_t row = AddJournal();
    store::WriteJournalFile(FileOf(row), pages);
    return row;
  }
  static std::string FileOf(std::int32_t row) { return "j" + std::to_string(row) + ".tqf"; }
  std::string BytesOf(std::int32_t row) const { return folder.Read(FileOf(row)); }

  // Loads without showing, as an export does.
  void Load(std::int32_t row) {
    window();
    PageInHand::JournalChosen(row);
    LoadJournalFile(Journals[static_cast<std::size_t>(row)].FileName);
  }
  void Open(std::int32_t row) {
    Load(row);
    window().ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
  }
  // Opens a new journal of these pages. Returns its row.
  std::int32_t Begin(const Texts& texts) {
    const std::int32_t row = AddJournal(texts);
    Open(row);
    return row;
  }
  // The texts of a file's pages, as a person reads them.
  Texts TextsIn(std::int32_t row) {
    Texts texts;
    richtext::RichTextBox box;
    for (const JournalPage& page : store::ReadJournalFile(FileOf(row)).pages) {
      std::string plain(page.Body.size() / 2, '\0');
      store::Decipher(page.Body, PageShift, plain.data());
      box.SetTextRTF(plain);
      texts.push_back(page.Body.empty() ? "never stored" : box.Text().toStdString());
    }
    return texts;
  }

  frmJournal& window() { return look::The<frmJournal>(); }
  richtext::RichTextBox& text() { return *window().face->txtM; }
  std::string Text() { return text().Text().toStdString(); }
  // The look of the character behind a place.
  platform::FontValues FontAt(int position) {
    text().SetSelStart(position);
    text().SetSelLength(1);
    return {*text().SelFontName(),  *text().SelFontSize(),   *text().SelBold(), *text().SelItalic(),
            *text().SelUnderline(), *text().SelStrikeThru(), *text().SelColor()};
  }
  void Type(const std::string& letters) { QTest::keyClicks(&text(), QString::fromStdString(letters)); }
  void Press(const char* key) { Click(window().Toolbar1->Button(QString::fromLatin1(key))); }
  // Presses a button whose dialog blocks; `act` must end it.
  template <class Dialog>
  void In(const char* key, const std::function<void(Dialog&)>& act) {
    QTimer::singleShot(0, [act] { act(look::The<Dialog>()); });
    Press(key);
    EXPECT_FALSE(look::IsLoaded<Dialog>());
    QCoreApplication::processEvents();
  }
  // Date and page number, as the head strip shows them, and the page's text.
  std::string Shown() {
    const PageFace& face = *window().face;
    return (face.lblDate->text() + face.lblPageNum1->text()).toStdString() + ": " + Text();
  }

  Clock clock{45000.5};
};

}  // namespace fixture
