// The index of the open journal: a tree of years, months and pages that leads to each page.
#pragma once

#include <vector>

#include <QtWidgets/QTreeWidget>

#include "editor/PageIndex.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmIndex : public look::Form {
  Q_OBJECT

 public:
  frmIndex();

  QTreeWidget* TreeView1;  // an item's Tag, a row of Pages, is its Qt::UserRole
  look::PictureButton* cmdHelp;
  look::PictureButton* cmdGoDate;
  look::PictureButton* cmdClose;

  // Adds every page of the open journal to the tree, whatever it holds already.
  void AddPages();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool SelectsFirst(const QKeyEvent& key);
  void cmdGoDate_Click();

  std::vector<PageIndexNode> nodes_;
  std::vector<QTreeWidgetItem*> items_;  // one a node
};

// Fills the index with the pages of the open journal and shows it beside the journal window. Standing open
// already it comes forward, with every page added once more. The closing of the journal closes it.
void ShowJournalIndex();
