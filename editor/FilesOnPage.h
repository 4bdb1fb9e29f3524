// Files that are dropped on the page, or pasted from a file manager.
#pragma once

#include <vector>

#include <QtCore/QObject>

#include "editor/OfferedFiles.h"

class QWidget;
namespace richtext {
class RichTextBox;
}

// Of each picture Add Picture opens, one after the other; a plain text or an RTF file goes in at the caret,
// as if it was pasted. What cannot be taken is told in one message at the end, and changes nothing.
class FilesOnPage : public QObject {
 public:
  // Listens to the whole face, of which the text box is a part.
  FilesOnPage(QWidget* face, richtext::RichTextBox* text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Once whoever offers them has its answer: a dialog would keep it waiting. False where there are none.
  bool TakeLater(const QMimeData& offered);
  void Take(const std::vector<OfferedFile>& files);

  QWidget& face_;
  richtext::RichTextBox& text_;
};
