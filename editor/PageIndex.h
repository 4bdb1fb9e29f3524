// The index of a journal as a tree of years, months and pages.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include <QtCore/QString>

struct JournalPage;

struct PageIndexNode {
  QString text;
  std::string key;       // "d2004" for a year, "d3" for March; none for a page
  std::int32_t tag = 0;  // a row of Pages: the page's own, or the first one met with that year or month
  int parent = -1;       // the place of the node above, which comes before this one; -1 for a year
};

// Adds a node for each page but the title page, and for each year and month whose key no node has yet.
// Nothing is sorted: all come in the order of first appearance. A month's key holds no year, so each month
// stands once in the whole tree, under the year that had it first, with the pages of all years.
void AddToPageIndex(std::vector<PageIndexNode>& nodes, std::span<const JournalPage> pages);
