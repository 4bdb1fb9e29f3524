#include "richtext/rtf/ListTableWriter.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "richtext/document/ListLabel.h"
#include "richtext/rtf/Escape.h"

namespace richtext::rtf {
namespace {

constexpr std::size_t BytesOfList = 200;
constexpr std::size_t BytesOfLevel = 120;
constexpr std::size_t BytesOfLetter = 9;

// \levelnfc of the kinds.
std::int32_t NumberKindOf(ListKind kind) {
  constexpr std::int32_t Kinds[] = {255, 23, 0, 4, 3, 2, 1};
  return Kinds[static_cast<std::size_t>(kind)];
}

void WriteByte(std::size_t byte, Output& out) {
  AppendHexByte(static_cast<char>(byte), out.Bytes());
}

// The text is told with its length, and where the number stands in it.
void WriteText(const ListFormat& list, std::size_t level, Output& out) {
  const bool hasNumber = list.kind != ListKind::Bullet && list.kind != ListKind::None;
  out.BeginGroup("leveltext");
  WriteByte(list.before.size() + list.after.size() + hasNumber, out);
  out.Text(list.before);
  if (hasNumber) WriteByte(level, out);
  out.Text(list.after);
  out.Raw(";}");
  out.BeginGroup("levelnumbers");
  if (hasNumber) WriteByte(list.before.size() + 1, out);
  out.Raw(";}");
}

// One that no item has is there to be counted.
void WriteLevel(const ParagraphFormat& format, std::size_t level, Output& out) {
  const ListFormat list = FittingList(format.list);
  out.BeginGroup("listlevel");
  out.Word("levelnfc", NumberKindOf(list.kind));
  out.Word("levelnfcn", NumberKindOf(list.kind));
  out.Word("levelstartat", list.start);
  WriteText(list, level, out);
  out.Measure("fi", FittingIndent(format.firstLineIndent));
  out.Measure("li", FittingIndent(format.leftIndent));
  out.Raw("}");
}

bool IsItem(const ParagraphFormat& format) {
  return format.list.kind != ListKind::None;
}

}  // namespace

ListTableWriter::ListTableWriter(const Document& document) {
  const std::vector<ParagraphFormat>& formats = document.paragraphFormats;
  if (std::none_of(formats.begin(), formats.end(), IsItem)) return;
  numbers_.reserve(document.paragraphs.size());
  for (const Paragraph& paragraph : document.paragraphs) {
    const ParagraphFormat& format = formats[paragraph.format];
    numbers_.push_back(IsItem(format) ? TakeItem(format) : 0);
    isOpen_ = isOpen_ && IsItem(format);
  }
}

std::int32_t ListTableWriter::TakeItem(const ParagraphFormat& format) {
  const auto level = static_cast<std::size_t>(std::clamp(format.list.level, 0, MaxListLevel));
  const ParagraphFormat* before = isOpen_ ? lists_.back()[level] : nullptr;
  const bool goesOn = isOpen_ && (before == nullptr || before->list == format.list);
  if (before == nullptr || !goesOn)
    estimated_ += BytesOfLevel + BytesOfLetter * (format.list.before.size() + format.list.after.size());
  if (!goesOn) {
    estimated_ += BytesOfList + level * BytesOfLevel;
    if (estimated_ > MaxListTable) return isOpen_ = false, 0;
    lists_.emplace_back();
    isOpen_ = true;
  }
  if (lists_.back()[level] == nullptr) lists_.back()[level] = &format;
  return static_cast<std::int32_t>(lists_.size());
}

void ListTableWriter::WriteTo(Output& out) const {
  if (lists_.empty()) return;
  out.Raw("{\\*\\listtable");
  for (std::size_t i = 0; i < lists_.size(); ++i) WriteList(lists_[i], static_cast<std::int32_t>(i + 1), out);
  out.Raw("}\r\n{\\*\\listoverridetable");
  for (std::size_t i = 0; i < lists_.size(); ++i) {
    out.BeginGroup("listoverride");
    out.Word("listid", static_cast<std::int32_t>(i + 1));
    out.Word("listoverridecount", 0);
    out.Word("ls", static_cast<std::int32_t>(i + 1));
    out.Raw("}");
  }
  out.Raw("}\r\n");
}

void ListTableWriter::WriteList(const List& list, std::int32_t id, Output& out) {
  out.BeginGroup("list");
  out.Word("listtemplateid", id);
  out.Word("listhybrid");
  const auto last = std::find_if(list.rbegin(), list.rend(), [](const auto* format) { return format; });
  const ParagraphFormat none;
  for (std::size_t level = 0; level < static_cast<std::size_t>(list.rend() - last); ++level)
    WriteLevel(list[level] ? *list[level] : none, level, out);
  out.Raw("{\\listname ;}");
  out.Word("listid", id);
  out.Raw("}");
}

}  // namespace richtext::rtf
