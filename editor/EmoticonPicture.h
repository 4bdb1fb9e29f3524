// The pictures of the folder "emoticons", each with a sharper one where the screen can show it.
#pragma once

#include <string>

#include <QtGui/QImage>

// Null for what is no picture, and no ordinary file. Of a moving picture the first one; of one that is larger
// than `most`, in pixels, a smaller one.
QImage LoadEmoticonPicture(const std::string& fileName, QSize most = {});

// The picture with twice as many pixels, to be shown as large as the plain one, where the screen's device
// pixel ratio is above 1 and there is one of this very file; else the plain one.
QImage AsSharpAs(double devicePixelRatio, const std::string& fileName, const QImage& plain);

// The folder that both lie in.
std::string EmoticonFolder();
