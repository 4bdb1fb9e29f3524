#include "editor/FilesOnPage.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QStringDecoder>
#include <QtGui/QDropEvent>
#include <QtWidgets/QApplication>

#include "look/Pass.h"
#include "pictures/AddPicture.h"
#include "pictures/NewRow.h"
#include "pictures/decoding/PictureFile.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/InputFile.h"
#include "richtext/box/RichTextBox.h"
#include "state/State.h"

namespace {

using richtext::RichTextBox;

constexpr std::uint64_t LongestText = 4 << 20;  // bytes; a page of so many letters takes seconds to lay out
constexpr std::uint64_t LongestRtf = 64 << 20;  // it may hold pictures
constexpr std::string_view BeginOfRtf = "{\\rtf";
constexpr std::size_t MostTold = 6;  // files that a message still has the room for

struct Sort {
  bool isRtf;
  std::uint64_t size;
};

Sort SortOf(const std::string& path) {
  platform::InputFile file(path);
  std::string head(BeginOfRtf.size(), '\0');
  head.resize(file.Read(head.data(), head.size()));
  return {head == BeginOfRtf, file.size()};
}

// Nothing for bytes that are no text: every text can do without the control characters that begin nearly all
// other files.
std::optional<QString> DecodedText(const std::string& bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const auto marked = QStringDecoder::encodingForData(view);
  QStringDecoder decoder(marked.value_or(QStringDecoder::Utf8));
  QString text = decoder.decode(view);
  if (decoder.hasError()) text = platform::FromCodePage(bytes);
  const auto isControl = [](QChar letter) {
    return letter < u' ' && !QStringView(u"\t\n\v\f\r").contains(letter);
  };
  if (std::any_of(text.begin(), text.end(), isControl)) return std::nullopt;
  return text;
}

void Insert(const QMimeData& content, RichTextBox& text) {
  text.CommitComposition();
  text.InsertOffered(content);
}

void InsertRtf(const std::string& path, RichTextBox& text) {
  QMimeData content;
  content.setData(QStringLiteral("text/rtf"), QByteArray::fromStdString(platform::ReadFile(path)));
  Insert(content, text);
}

// What stands against it; nothing once it is in.
std::string InsertText(const std::string& path, RichTextBox& box) {
  const std::optional<QString> text = DecodedText(platform::ReadFile(path));
  if (!text) return "It is neither a picture of a kind that can be read here, nor a text, nor an RTF file.";
  if (text->isEmpty()) return "It is empty.";
  QMimeData content;
  content.setText(*text);
  Insert(content, box);
  return {};
}

std::string Refusal(const OfferedFile& file, RichTextBox& text) {
  if (!file.isHere) return "It lies on another machine. Copy it to this one, and take that copy.";
  const Sort sort = SortOf(file.name);
  if (!sort.isRtf && pictures::IsPicture(file.name)) {
    if (PageIsFull()) return "Maximum pictures for this page.";
    AddPicture(file.name);
    return {};
  }
  if (text.isReadOnly()) return "Nothing can be written on this page.";
  if (sort.size > (sort.isRtf ? LongestRtf : LongestText))
    return "It is no picture of a kind that can be read here, and as a text it is too long for a page.";
  if (!sort.isRtf) return InsertText(file.name, text);
  InsertRtf(file.name, text);
  return {};
}

// The same, with its name.
std::string RefusalOf(const OfferedFile& file, RichTextBox& text) {
  try {
    const std::string refusal = Refusal(file, text);
    return refusal.empty() ? refusal : file.name + "\n" + refusal;
  } catch (const platform::Failure& failure) {
    return failure.what();
  }
}

void Tell(const std::vector<std::string>& refusals) {
  if (refusals.empty()) return;
  std::string text = "This was not taken into the page:";
  for (std::size_t i = 0; i < std::min(refusals.size(), MostTold); ++i) text += "\n\n" + refusals[i];
  if (refusals.size() > MostTold)
    text += "\n\nThere are " + std::to_string(refusals.size() - MostTold) + " more.";
  platform::ShowMessage(text);
}

bool IsOverThePage(const QDropEvent& event) {
  return (event.possibleActions() & Qt::CopyAction) && !QApplication::activeModalWidget() &&
         !OfferedFiles(*event.mimeData()).empty();
}

}  // namespace

FilesOnPage::FilesOnPage(QWidget* face, RichTextBox* text) : QObject(face), face_(*face), text_(*text) {
  face->setAcceptDrops(true);
  for (QObject* target : {static_cast<QObject*>(face), static_cast<QObject*>(text->viewport())})
    target->installEventFilter(this);
  text->TakeElsewhere = [this](const QMimeData& offered) { return TakeLater(offered); };
}

// Never moved: whoever offers a file would then delete it.
bool FilesOnPage::eventFilter(QObject* /*watched*/, QEvent* event) {
  const auto type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
  auto& offer = *static_cast<QDropEvent*>(event);
  if (!IsOverThePage(offer)) return false;
  offer.setDropAction(Qt::CopyAction);
  offer.accept();
  if (type == QEvent::Drop) TakeLater(*offer.mimeData());
  return true;
}

bool FilesOnPage::TakeLater(const QMimeData& offered) {
  std::vector<OfferedFile> files = OfferedFiles(offered);
  if (files.empty()) return false;
  look::Pass::RunAfterwards([self = QPointer<FilesOnPage>(this), files = std::move(files)] {
    if (self && PagesJournal != 0) self->Take(files);
  });
  return true;
}

void FilesOnPage::Take(const std::vector<OfferedFile>& files) {
  face_.window()->activateWindow();  // the file manager's is the active one
  std::vector<std::string> refusals;
  for (const OfferedFile& file : files)
    if (std::string refusal = RefusalOf(file, text_); !refusal.empty())
      refusals.push_back(std::move(refusal));
  Tell(refusals);
}
