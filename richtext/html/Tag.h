// The tags of markup: read by one set of rules, and written so that there is one way to read them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

#include <QtCore/QString>

namespace richtext::html {

struct Attribute {
  QString key;    // of small letters, digits and '-'
  QString value;  // with its entities
};

struct Tag {
  QString name;  // in small letters; empty for one that no element has
  std::vector<Attribute> attributes;
  bool closes = false;
  bool endsItself = false;  // by "/>"
};

template <std::size_t Count>
bool IsOneOf(const QStringView (&names)[Count], const QString& name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// Whether the bracket at `at` opens a tag; a comment, a declaration and an instruction are none.
bool IsTagAt(QStringView html, qsizetype at);

// `at` is at such a bracket, and is moved behind the tag. Attributes with other keys are left out.
Tag TakeTag(QStringView html, qsizetype& at);

// The tag for the toolkit, whose own rules are others: it reads names in quotes and entities in names, for
// instance, and ends tags and values elsewhere than those who write markup do.
QString Written(const Tag& tag);

}  // namespace richtext::html
