// The sections of a web page. Each one appends its lines to the file, which it creates where it is missing.
//
// They write the HTML of an older day: tags in capitals, attributes without quotes, cells closed twice, a
// font tag that stays open, no text escaped. Pages that were put on the web years ago look so, and the ones
// beside them are to be the same, byte for byte.
//
// A page number of -1 means the one file of a single-page export, 0 the index page of a multi-page one, and 1
// and onward a dated page. A failure to write is a platform::Failure that names the file.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "output/ExportSettings.h"

inline constexpr std::string_view HtmlLineEnd = "\r\n";
// Each font's name has quotes of its own.
inline constexpr std::string_view HtmlFontLine = R"(<font face="Verdana", "MS Sans Serif", "Arial">)";

// Opens the file, appends the text and a line end, and closes it: nothing is held back, and no handle stays
// open between two lines.
void WriteHtmlLine(std::string_view text, const std::string& path);
void WriteHtmlLines(const std::string& path, std::initializer_list<std::string_view> lines);

void WriteHtmlHead(const std::string& path, const ExportSettings& settings);
// From the body tag to the start of the cell of the page's text, with menu bar and caption where they belong.
void WriteHtmlBodyStart(const std::string& path, std::int32_t page, const ExportSettings& settings);
// Page number, and the date of the page that is current.
void WriteHtmlPageCaption(const std::string& path, std::int32_t page, const ExportSettings& settings);
// The links to the other pages.
void WriteHtmlMenuBar(std::int32_t page, const std::string& path, const ExportSettings& settings);
// The dates of all pages as links to them.
void WriteHtmlDateIndex(const std::string& path, const ExportSettings& settings);
// Copies the pictures of the page that is current into `folder` and writes their tags; those rows of Pictures
// are looked at. A picture whose file is missing leaves no tag.
void WriteHtmlPictures(const std::vector<std::int32_t>& rows, const std::string& folder,
                       const std::string& path);
void WriteHtmlFooter(const std::string& path, const ExportSettings& settings);
