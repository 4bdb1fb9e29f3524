// What the person does with the tools on the page. All begin and end with a journal of many pages open.
#pragma once

#include "tools/tour/Person.h"

// By keys alone: to a page by the index, and another date for it by the calendar.
void FindAndDateAPage(Person& person);
// A font with its colour for what is typed next, and an emoticon behind it.
void DressTheText(Person& person);
// Another icon and another paper.
void ChangeTheProperties(Person& person);
