// A page of the diary on paper.
#pragma once

#include "tools/tour/Person.h"

// From the bookcase, whose first journal is opened and closed again: prints its page 1 to a PDF file, and
// puts a picture of the sheet into the album.
void PrintAPage(Person& person);
