// What the person does with pictures. Both begin and end with the journal open on its last page.
#pragma once

#include "tools/tour/Person.h"

// Three photographs in frames, of which one is dragged.
void LayPictures(Person& person);
// They lie where they lay; one is removed.
void FindPicturesAgain(Person& person);
