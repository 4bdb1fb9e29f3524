// The toolkit's texts on their way into a web page.
#pragma once

#include <string>

#include <QtCore/QString>

// As WebText, with lines ended by "\r\n" and nothing in the place of an embedded picture.
std::string WebLines(QString text);
