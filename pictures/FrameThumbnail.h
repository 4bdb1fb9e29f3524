// What a frame looks like, in the list of frames.
#pragma once

#include <string>

#include <QtGui/QIcon>

inline constexpr QSize FrameThumbnailSize(40, 30);  // pixels

// The frame of that file over a pale sky, for a screen of that ratio; the sky alone for an empty path, and
// for a file that is no picture.
QIcon FrameThumbnail(const std::string& path, double devicePixelRatio);
