// The window that shows the help file: the chapters at the left, the text at the right, and a line to find a
// word in it.
#pragma once

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QWidget>

class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(const QString& html);

  QPushButton* cmdBack;
  QLineEdit* txtFind;
  QPushButton* cmdFindNext;
  QListWidget* lstContents;
  QTextBrowser* Browser;

  // Whether the text has a chapter of that anchor.
  bool HasTopic(const QString& anchor) const;
  // Shows the chapter, or the beginning for an empty anchor, on the screen of `window`. While a dialog blocks
  // the other windows, the help belongs to it: it takes input all the same, and goes when the dialog is
  // unloaded.
  void ShowTopic(const QString& anchor, const QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeControls();
  void LayOut();
  void ConnectControls();
  void ListContents(const QString& html);
  void GoTo(const QString& anchor);
  void PutCaretAt(const QString& anchor);
  void Arrive(const QString& anchor);
  void MarkChapter(const QString& anchor);
  void FindNext();
  void TellWhetherFound(bool found);
};
