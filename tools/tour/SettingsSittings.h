// What the person does with the settings, the password, a stray journal and the help.
#pragma once

#include "tools/tour/Person.h"

// From the open journal: the three themes, of which the last stays. Ends at the bookcase.
void TryTheThemes(Person& person);
// At the bookcase. The new password holds from the next start on.
void ChangeThePassword(Person& person, const QString& old, const QString& fresh);
// At the bookcase: a copy of the first journal's file, which no row means until the next start.
void BringAStray();
// At the lock, with a stray in the folder: only the new password opens, the theme is still on, and the stray
// stands in the bookcase, its pages readable. Ends at the bookcase.
void ComeBackWithTheNewPassword(Person& person, const QString& old, const QString& fresh);
// At the lock of the diary with strays: it shows what its contents tell, and F1 leads each window's reader to
// its chapter. Ends at the bookcase.
void AskForHelpEverywhere(Person& person);
