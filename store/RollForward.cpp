#include "store/RollForward.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "state/State.h"
#include "store/PageCipher.h"

namespace store {
namespace {

std::string Plain(std::string_view body, std::int32_t shift) {
  std::string plain(body.size() / 2, '\0');
  Decipher(body.substr(0, plain.size() * 2), shift, plain.data());
  return plain;
}

bool IsDocument(std::string_view body, std::int32_t shift) {
  constexpr std::string_view start = "{\\rtf";
  return body.empty() || Plain(body.substr(0, 2 * start.size()), shift) == start;
}

// The filler differs from one storing of a page to the next.
bool IsSameText(std::string_view one, std::string_view other, std::int32_t shift) {
  return one.size() == other.size() && Plain(one, shift) == Plain(other, shift);
}

std::string_view BodyOf(const UnstoredPage& page) {
  return page.Body ? std::string_view(*page.Body) : std::string_view();
}

bool BeganFrom(const UnstoredPage& page, const FileCheck& body) {
  const auto isIt = [&](const RowOnItsWay& row) { return row.body == body; };
  return page.began == body || std::ranges::any_of(page.orBegan, isIt);
}

bool BeganFrom(const UnstoredPage& page, double date) {
  const auto isIt = [&](const RowOnItsWay& row) { return row.PageDate == date; };
  return page.beganDate == date || std::ranges::any_of(page.orBegan, isIt);
}

class Roller {
 public:
  Roller(std::int32_t shift, std::vector<JournalPage>& pages) : shift_(shift), pages_(pages) {}

  RolledPage Roll(const UnstoredPage& page) const {
    const auto row = static_cast<std::size_t>(page.row);
    if (!IsDocument(BodyOf(page), shift_)) return {page.row, page.row, Rolled::NoDocument};
    if (row < pages_.size()) return RollInto(pages_[row], page);
    if (row == pages_.size() && page.isNew) return Append(page, Rolled::IntoItsRow);
    return page.Body ? AppendOnce(page) : RolledPage{page.row, page.row, Rolled::IsThere};
  }

 private:
  RolledPage RollInto(JournalPage& there, const UnstoredPage& page) const {
    const bool isAsItWas = BeganFrom(page, CheckOf(there.Body));
    if (page.Body && IsSameText(there.Body, *page.Body, shift_)) return TakeDate(there, page, true);
    if (!page.Body || page.Body->empty()) return TakeDate(there, page, isAsItWas);
    if (!isAsItWas) return AppendOnce(page);
    there.Body = *page.Body;
    there.PageDate = page.PageDate;
    return {page.row, page.row, Rolled::IntoItsRow};
  }

  static RolledPage TakeDate(JournalPage& there, const UnstoredPage& page, bool mayTake) {
    const bool differs = BeganFrom(page, there.PageDate) && there.PageDate != page.PageDate;
    if (!mayTake || !differs) return {page.row, page.row, Rolled::IsThere};
    there.PageDate = page.PageDate;
    return {page.row, page.row, Rolled::IntoItsRow};
  }

  // A kill may have come between an earlier roll and the end of its log.
  RolledPage AppendOnce(const UnstoredPage& page) const {
    for (std::size_t row = 0; row < pages_.size(); ++row)
      if (pages_[row].PageDate == page.PageDate && IsSameText(pages_[row].Body, BodyOf(page), shift_))
        return {page.row, static_cast<std::int32_t>(row), Rolled::IsThere};
    return Append(page, Rolled::AtTheEnd);
  }

  // A journal whose file has gone gets its title page back.
  RolledPage Append(const UnstoredPage& page, Rolled how) const {
    if (pages_.empty() && page.row != 0) pages_.push_back({{}, page.PageDate});
    pages_.push_back({std::string(BodyOf(page)), page.PageDate});
    return {page.row, static_cast<std::int32_t>(pages_.size()) - 1, how};
  }

  std::int32_t shift_;
  std::vector<JournalPage>& pages_;
};

}  // namespace

std::vector<RolledPage> RollForward(const std::vector<UnstoredPage>& logged, std::int32_t shift,
                                    std::vector<JournalPage>& pages) {
  const Roller roller(shift, pages);
  std::vector<RolledPage> rolled;
  for (const UnstoredPage& page : logged) rolled.push_back(roller.Roll(page));
  if (pages.size() == 1) pages.push_back({{}, pages.front().PageDate});  // no journal is a title page alone
  return rolled;
}

}  // namespace store
