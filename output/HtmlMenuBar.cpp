// The links from one page of a multi-page export to the others.
#include <algorithm>

#include "output/HtmlSections.h"

namespace {

struct Numbers {
  std::int32_t first;
  std::int32_t last;
};

// Up to eleven page numbers around the page, and ten near the start of the book.
Numbers NumbersAround(std::int32_t page, std::int32_t pageCount) {
  Numbers numbers{page - 5, page + 5};
  if (numbers.first < 1) {
    numbers.first = 1;
    numbers.last += 5 - page;
  }
  if (numbers.last > pageCount) {
    numbers.first = std::max(1, numbers.first - (numbers.last - pageCount));
    numbers.last = pageCount;
  }
  return numbers;
}

std::string Link(std::int32_t page, const std::string& text) {
  return "<a href=page" + std::to_string(page) + ".html>" + text + "</a>";
}

void WriteItem(const char* before, const std::string& link, const char* behind, const std::string& path) {
  WriteHtmlLine(std::string(before).append(link).append(behind), path);
}

// In a journal of one dated page the two pages have one link each, to one another.
void WriteOnlyLink(const std::string& link, const std::string& path) {
  WriteHtmlLine("<CENTER>", path);
  WriteItem("[", link, "]", path);
  WriteHtmlLine("</CENTER>", path);
}

void WriteNumbers(std::int32_t page, std::int32_t pageCount, const std::string& path) {
  const Numbers numbers = NumbersAround(page, pageCount);
  if (numbers.first > 1) WriteHtmlLine("...", path);
  for (std::int32_t k = numbers.first; k <= numbers.last; ++k) {
    const std::string number = std::to_string(k);
    WriteHtmlLine(k == page ? " " + number + " " : Link(k, number), path);
  }
  if (numbers.last < pageCount) WriteHtmlLine("...", path);
}

void WriteFullBar(std::int32_t page, std::int32_t pageCount, const std::string& path) {
  WriteHtmlLine("<CENTER>", path);
  WriteHtmlLine(page == 0 ? "[Home] " : "[<a href=index.html>Home</a>] ", path);
  if (page > 1) WriteItem("[", Link(page - 1, "Previous"), "] ", path);
  WriteNumbers(page, pageCount, path);
  if (page < pageCount) {
    WriteItem(" [", Link(page + 1, "Next"), "]", path);
    WriteItem(" [", Link(pageCount, "Last"), "]", path);
  }
  WriteHtmlLine("</CENTER><BR>", path);
}

}  // namespace

void WriteHtmlMenuBar(std::int32_t page, const std::string& path, const ExportSettings& settings) {
  const std::int32_t pageCount = settings.pageCount;
  if (page == 0 && pageCount == 1)
    WriteOnlyLink(Link(1, "Next Page"), path);
  else if (page == 1 && pageCount == 1)
    WriteOnlyLink("<a href=index.html>Home Page</a>", path);
  else if (pageCount >= 2)
    WriteFullBar(page, pageCount, path);
}
