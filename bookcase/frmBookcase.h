// The bookcase: the program's main window, with every journal of the bookcase as one item of a list.
#pragma once

#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>

#include "look/Form.h"
#include "look/PictureButton.h"

class frmBookcase : public look::Form {
  Q_OBJECT

 public:
  frmBookcase();

  QPushButton* Image2;  // a picture that is clicked
  look::PictureButton* cmdOpen;
  look::PictureButton* cmdAdd;
  look::PictureButton* cmdDelete;
  look::PictureButton* cmdExport;
  look::PictureButton* cmdProp;
  look::PictureButton* cmdHelp;
  look::PictureButton* cmdAbout;
  look::PictureButton* cmdOptions;
  look::PictureButton* cmdClose;
  QLabel* Label2;
  QListWidget* ListView1;  // each item's Tag, the row of Journals, is its Qt::UserRole

  // Adds the item of one row of Journals.
  void AddItem(int row);
  // The row of Journals that the selected item stands for; 0 for an empty list.
  int SelectedRow() const;
  // Puts the selected journal into the journal window, which stays as visible as it was: steps 2 to 8 of
  // opening. False when no journal is open afterwards.
  bool DressJournalWindow();

  // Lists the live rows of Journals anew, in row order.
  void ListJournals();

  // Takes over the theme in force.
  void WearTheme();

  void CloseBox() override;  // does what cmdClose does

 Q_SIGNALS:
  // The options, and the way out of the program, live upstairs.
  void OptionsRequested();
  void ExitRequested();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOutButtons();
  void LayOutList();
  void ConnectCommands();
  void KeepASelection();
  void ShowAgain();       // the journal, or its export, has been closed
  void ShowProperties();  // of the journal in CurrentJournal

  void cmdOpen_Click();
  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdExport_Click();
  void cmdAbout_Click();
  void cmdProp_Click();
  void cmdHelp_Click();
  void cmdClose_Click();
};

// ListJournals of the one bookcase window.
void RefreshBookcaseList();
