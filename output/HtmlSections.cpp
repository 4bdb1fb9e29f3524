#include "output/HtmlSections.h"

#include "output/WebText.h"
#include "platform/files/OutputFile.h"
#include "state/Maker.h"
#include "state/State.h"

namespace {

std::string LongDateOf(std::int32_t page) {
  return WebLongDate(Pages.at(static_cast<std::size_t>(page)).PageDate);
}

}  // namespace

void WriteHtmlLine(std::string_view text, const std::string& path) {
  std::string line;
  line.reserve(text.size() + HtmlLineEnd.size());
  line.append(text).append(HtmlLineEnd);
  platform::AppendToFile(path, line);
}

void WriteHtmlLines(const std::string& path, std::initializer_list<std::string_view> lines) {
  for (const std::string_view line : lines) WriteHtmlLine(line, path);
}

void WriteHtmlHead(const std::string& path, const ExportSettings& settings) {
  std::string generator = R"(<meta name="GENERATOR" content="Thorn Quill ()";
  generator.append(MakersAddress).append(")\">");
  WriteHtmlLines(path, {
                           "<HTML>",
                           "<HEAD>",
                           "<TITLE>" + settings.title + "</TITLE>",
                           R"(<meta name="Content-Type" content="text/html; charset=iso-8859-1">)",
                           generator,
                           "</HEAD>",
                       });
}

void WriteHtmlBodyStart(const std::string& path, std::int32_t page, const ExportSettings& settings) {
  WriteHtmlLines(path, {
                           "<BODY BGCOLOR=#FFFFFF>",
                           HtmlFontLine,
                           "<BR>",
                           "<CENTER>",
                           "<h3>" + settings.headline + "</h3>\r\n",
                           "<TABLE BORDER=0 width=640>",
                           "<TR>",
                           "<TD>",
                           HtmlFontLine,
                       });
  if (page != -1) {
    if (settings.topMenu) WriteHtmlMenuBar(page, path, settings);
    WriteHtmlPageCaption(path, page, settings);
  }
  WriteHtmlLines(path, {"<TABLE BORDER=0 width=100% height=300>", "<TR>", "<TD>", HtmlFontLine});
}

// What is not shown is an empty text between the same blanks.
void WriteHtmlPageCaption(const std::string& path, std::int32_t page, const ExportSettings& settings) {
  if (page == 0 || (!settings.showDates && !settings.showPageNumbers)) return;
  const std::string date = settings.showDates ? LongDateOf(CurrentPage) : std::string();
  const std::string number = settings.showPageNumbers ? "Page #" + std::to_string(page) : std::string();
  const char* const between = settings.showDates && settings.showPageNumbers ? ", " : " ";
  WriteHtmlLine("<CENTER>" + number + between + date + " </CENTER><BR>", path);
}

void WriteHtmlDateIndex(const std::string& path, const ExportSettings& settings) {
  WriteHtmlLines(path, {"<BR>", "<TABLE BORDER=0 width=300>", "<TR>", "<TD>", HtmlFontLine,
                        "<font size=-1>Journal Entries by Date</font><BR><BR>"});
  for (std::int32_t k = 1; k <= settings.pageCount; ++k)
    WriteHtmlLine("<a href=page" + std::to_string(k) + ".html>" + LongDateOf(k) + "</a><BR><BR>", path);
  WriteHtmlLines(path, {"</TD>", "</TD>", "</TABLE>"});
}

void WriteHtmlFooter(const std::string& path, const ExportSettings& settings) {
  WriteHtmlLine(settings.footer, path);
}
