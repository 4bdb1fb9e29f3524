// The rows of Pictures as the page shows them.
#pragma once

#include <cstdint>
#include <vector>

#include <QtCore/QPoint>
#include <QtCore/QSize>

struct PagePicture;

// Of Pictures. Throws std::out_of_range.
PagePicture& PictureRow(std::int32_t row);

// Of the open journal, those of the page whose picture files are there.
std::vector<std::int32_t> PictureRowsOf(std::int32_t page);

// Where the row lies and how large it is, in pixels, as near as the toolkit can have it: a row may hold any
// number.
QPoint PlaceOf(const PagePicture& picture);
QSize SizeOf(const PagePicture& picture);
