// The bytes of a page. They never change: a page that is written anew gets others. So a copy of a row, and of
// all rows of a long journal, is made in an instant, and any thread may read it.
#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

class PageBody {
 public:
  PageBody() = default;
  // It stands in for a text.
  // cppcheck-suppress noExplicitConstructor
  PageBody(std::string bytes)
      : bytes_(bytes.empty() ? nullptr : std::make_shared<const std::string>(std::move(bytes))) {}
  // cppcheck-suppress noExplicitConstructor
  PageBody(const char* bytes) : PageBody(std::string(bytes)) {}

  const std::string& text() const {
    static const std::string none;
    return bytes_ ? *bytes_ : none;
  }
  operator const std::string&() const { return text(); }
  operator std::string_view() const { return text(); }
  bool empty() const { return !bytes_; }
  std::size_t size() const { return text().size(); }

  // Whether they are the very same, and not only equal.
  bool Is(const PageBody& other) const { return bytes_ == other.bytes_; }
  bool operator==(const PageBody& other) const { return Is(other) || text() == other.text(); }
  friend std::ostream& operator<<(std::ostream& out, const PageBody& body) { return out << body.text(); }

 private:
  std::shared_ptr<const std::string> bytes_;  // none when there are no bytes
};
