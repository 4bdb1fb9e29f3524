// How messages call journals and pages, in UTF-8.
#pragma once

#include <cstdint>
#include <set>
#include <string>

namespace store {

// The name of the journal that has the file; the file's where no row of the bookcase has it.
std::string TitleOf(const std::string& fileName);

// "the title page" or "page 3".
std::string PageName(std::int32_t row);

// "the title page, page 3, page 12", and how many more there are beyond ten.
std::string PageNames(const std::set<std::int32_t>& rows);

}  // namespace store
