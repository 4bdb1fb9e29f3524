// A page as a row of values, each of some whole paragraphs. Who copies a page time and again keeps the parts
// that have not changed.
#pragma once

#include <memory>
#include <vector>

namespace richtext {

struct Document;

// Nobody changes a part any more, so that several threads may read it. Each numbers its own formats by first
// use, and tells the page's distance between tab stops.
using PageParts = std::vector<std::shared_ptr<const Document>>;

// The page, its formats numbered by first use; of no parts, no document. Takes its time: no window's thread
// needs to do it.
Document Join(const PageParts& parts);

}  // namespace richtext
