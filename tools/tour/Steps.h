// What the person does, sitting by sitting and step by step.
#pragma once

#include "editor/PageFace.h"
#include "editor/frmJournal.h"
#include "look/PictureBox.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "richtext/box/RichTextBox.h"
#include "state/State.h"
#include "tools/tour/Person.h"

// The passwords of the person's own diary, the first and the later one.
inline const QString Rosebud = QStringLiteral("Rosebud7");
inline const QString Thorn = QStringLiteral("Thorn 9");

// What the person writes on the first page of that diary.
inline const QString FirstPage = u"It rained. We stayed in & read,\ncaf\u00E9, 5 \u20AC, \u0414\u0430."_qs;

frmJournal& Book();
// The page's number on the head strip and its text.
void ExpectPage(Person& person, const QString& number, const QString& text);

// With the journal open on its last page: three photographs in frames, of which one is dragged. In the next
// sitting they lie where they lay, and one is removed.
void LayPictures(Person& person);
void FindPicturesAgain(Person& person);
// From and to the bookcase: exports that diary as one page, and reads it in a browser.
void ExportTheDiary(Person& person);
// From and to the journal: prints its page 1 to a PDF file.
void PrintAPage(Person& person);

// With a journal of many pages open. By keys alone: to a page by the index, another date for it by the
// calendar. Then a font for what is typed next, and an emoticon behind it; then another icon and paper.
void FindAndDateAPage(Person& person);
void DressTheText(Person& person);
void ChangeTheProperties(Person& person);

// From the journal, which it closes: the three themes, of which the last stays.
void TryTheThemes(Person& person);
// At the bookcase. The new password holds from the next start on, for which a stray journal is brought: a
// copy of the first one's file. Then only that password opens, and the stray stands there, readable.
void ChangeThePassword(Person& person);
void ComeBackWithTheNewPassword(Person& person);
// At the lock of the diary with strays: it shows what its contents tell, and F1 leads each window's reader to
// its chapter. Ends at the bookcase.
void AskForHelpEverywhere(Person& person);

// From the first run to the journal, which stays open, and nothing touches the mouse: every command of the
// bookcase and the toolbar that a window or a photograph stands behind.
void LiveByKeys(Person& person);
// The small pictures, the frames and the help in the program's folder.
void StageForKeys();

// A diary as it looks after a year, in the program's folder; the password is "p". The README shows it.
void StageAYear();

struct Sitting {
  using Step = std::function<void(Person&)>;

  const char* title;
  std::vector<Step> steps;
  Step leave;                        // what ends the program, with exit code 0
  std::function<void()> stage = {};  // fills the fresh folder to sit down before; empty: the person's own
};

const std::vector<Sitting>& Sittings();
