// ImageList1: the icons of journals.
#pragma once

#include <QtGui/QIcon>

// 63 icons of 32 by 32 pixels, indexes 1 to 63, each size of one drawn when it is first seen. Any other index
// gives the first one. The order is part of the data: an index stands in the index file.
inline constexpr int JournalIconCount = 63;
QIcon JournalIcon(int index);

// What the icon shows, in a word or a few: "blue book". For those who do not see it.
QString JournalIconName(int index);
