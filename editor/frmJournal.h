// The journal window: the book. One instance, loaded at the start and never destroyed.
#pragma once

#include "look/Form.h"

class PageFace;
class Toolbar;

class frmJournal : public look::Form {
  Q_OBJECT

 public:
  frmJournal();

  PageFace* face;  // picTop, lblDate, lblPageNum1, picBinding and txtM
  Toolbar* Toolbar1;

  // The window's public surface, beside the toolbar: none of these stores the page first.
  void PageBack();
  void PageFirst();
  void SelectFont();
  void OpenIndex();
  void OpenCalendar();
  void InsertPicture();
  void OpenJournalProperties();
  void PageLast();
  void PageNew();
  void PageNext();
  void CloseBook();
  void OpenOptions();
  void SwitchToolbarCaptions();

  // Stores the page, closes the journal, and leaves the window hidden and blank. The journal stays open when
  // its file cannot be written.
  void CloseBox() override;

 Q_SIGNALS:
  // Commands whose windows live upstairs.
  void JournalPropertiesRequested();
  void OptionsRequested();
  void PrintRequested();

 protected:
  // F6 leads the keyboard from the page to the toolbar, to each picture, and back; Shift+F6 the other way.
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Toolbar1_ButtonClick(const QString& key);
  void ToggleToolbarCaptions();
};
