// The journal window over a scratch folder, driven as a person drives it.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QtTest/QTest>

#include "editor/OpenJournal.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/frmJournal.h"
#include "state/State.h"
#include "store/JournalFile.h"
#include "store/PageCipher.h"
#include "tests/support/Fixtures.h"

namespace fixture {

inline std::string Rtf(std::string_view text) {
  return "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 Verdana;}}\\f0\\fs32 " + std::string(text) + "}";
}

inline std::string Enciphered(std::string_view plain) {
  std::string body(plain.size() * 2, '\0');
  store::Encipher(plain, PageShift, body.data());
  return body;
}

class OpenBook : public testing::Test {
 protected:
  OpenBook() {
    ResetState();
    MasterPassword = "xAyB";
    PageShift = 71;
    chkGotoLastPage = 0;
  }
  ~OpenBook() override {
    look::UnloadAllForms();
    ResetState();
  }

  // One more row of the bookcase; its file is "j" and the row's number. Returns the row.
  std::int32_t AddJournal() {
    Journals.resize(static_cast<std::size_t>(++JournalCount) + 1);
    JournalEntry& entry = Journals.back();
    entry.FileName = "j" + std::to_string(JournalCount) + ".tqf";
    entry.FontName = "DejaVu Serif";
    entry.FontSize = 16;
    return JournalCount;
  }
  // The same with a file of these pages, dated from day 40000 on; an empty text is a page never stored.
  std::int32_t AddJournal(const std::vector<std::string>& texts) {
    const std::int32_t row = AddJournal();
    std::vector<JournalPage> pages;
    for (const std::string& text : texts)
      pages.push_back(
          {text.empty() ? "" : Enciphered(Rtf(text)), 40000.0 + static_cast<double>(pages.size())});
    folder.Write(FileOf(row), store::EncodeJournal(pages, MasterPassword));
    return row;
  }
  static std::string FileOf(std::int32_t row) { return "j" + std::to_string(row) + ".tqf"; }
  std::string BytesOf(std::int32_t row) const { return folder.Read(FileOf(row)); }

  // Loads without showing, as an export does.
  void Load(std::int32_t row) {
    window();
    CurrentJournal = row;
    LoadJournalFile(Journals[static_cast<std::size_t>(row)].FileName);
  }
  void Open(std::int32_t row) {
    Load(row);
    window().ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
  }
  // The texts of a file's pages, as a person reads them.
  std::vector<std::string> TextsIn(std::int32_t row) {
    const std::string bytes = BytesOf(row);
    std::size_t at = 0;
    const auto source = [&](char* buffer, std::size_t size) {
      const std::size_t read = bytes.copy(buffer, size, at);
      at += read;
      return read;
    };
    std::vector<std::string> texts;
    richtext::RichTextBox box;
    for (const JournalPage& page : store::DecodeJournal(source, bytes.size()).pages) {
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
  void Type(const char* letters) { QTest::keyClicks(&text(), QString::fromLatin1(letters)); }
  void Press(const char* key) {
    QTest::mouseClick(window().Toolbar1->Button(QString::fromLatin1(key)), Qt::LeftButton);
  }
  // Date and page number, as the head strip shows them.
  QString Header() { return window().face->lblDate->text() + window().face->lblPageNum1->text(); }

  Folder folder;
  Answers answers;
  End end;
  Clock clock{45000.5};
  PlainLongDates longDates;
};

}  // namespace fixture
