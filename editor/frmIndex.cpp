#include "editor/frmIndex.h"

#include <map>

#include <QtGui/QKeyEvent>

#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "look/AiryRows.h"
#include "look/Spoken.h"
#include "look/Theme.h"
#include "platform/desktop/Keystroke.h"
#include "platform/desktop/TaskBar.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"

namespace {

constexpr int Tag = Qt::UserRole;

QTreeWidgetItem* MakeItem(const PageIndexNode& node, const QFont& yearFont) {
  auto* item = new QTreeWidgetItem;
  if (node.parent < 0) item->setFont(0, yearFont);
  item->setText(0, node.text);
  item->setData(0, Tag, node.tag);
  return item;
}

}  // namespace

frmIndex::frmIndex()
    : Form(Kind::Dialog, QStringLiteral("frmIndex"), QStringLiteral("Journal Index"), 6465, 7215) {
  // clang-format off
  TreeView1 = Place(new QTreeWidget(this), "TreeView1", 120, 135, 6195, 6525, QStringLiteral("the pages by year and month"));
  cmdHelp   = Place(new look::PictureButton(QStringLiteral("Help"), this), "cmdHelp", 120, 6750, 930, 360);
  cmdGoDate = Place(new look::PictureButton(QStringLiteral("Go to this date"), this), "cmdGoDate", 3225, 6750, 1965, 360);
  cmdClose  = Place(new look::PictureButton(QStringLiteral("Close"), this), "cmdClose", 5235, 6750, 1065, 360);
  // clang-format on
  LowerToFit(*TreeView1);
  TreeView1->setHeaderHidden(true);
  TreeView1->setUniformRowHeights(true);
  look::SpeakCurrentEntry(*TreeView1);
  look::GiveRowsAir(*TreeView1);
  TreeView1->installEventFilter(this);
  TreeView1->viewport()->installEventFilter(this);
  cmdGoDate->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* button : {cmdClose, cmdGoDate, cmdHelp}) button->SetPicture(look::CurrentTheme().button);
  connect(TreeView1, &QTreeWidget::itemExpanded, this, [] { look::Announce(QStringLiteral("expanded")); });
  connect(TreeView1, &QTreeWidget::itemCollapsed, this, [] { look::Announce(QStringLiteral("collapsed")); });
  connect(cmdGoDate, &QPushButton::clicked, this, &frmIndex::cmdGoDate_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmIndex::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
  connect(&Face(), &PageFace::JournalClosed, this, &frmIndex::CloseBox);
  platform::KeepOffTaskBar(*this);
}

// Children come under their parents before these come into the tree: the view then hears of few insertions.
void frmIndex::AddPages() {
  AddToPageIndex(nodes_, Pages);
  QFont bold = TreeView1->font();
  bold.setBold(true);
  std::map<int, QList<QTreeWidgetItem*>, std::greater<>> children;
  for (std::size_t place = items_.size(); place < nodes_.size(); ++place) {
    items_.push_back(MakeItem(nodes_[place], bold));
    children[nodes_[place].parent].append(items_.back());
  }
  for (const auto& [parent, items] : children) {
    if (parent >= 0)
      items_[static_cast<std::size_t>(parent)]->addChildren(items);
    else
      TreeView1->addTopLevelItems(items);
  }
}

bool frmIndex::eventFilter(QObject* watched, QEvent* event) {
  if (watched == TreeView1)
    return event->type() == QEvent::KeyPress && SelectsFirst(*static_cast<QKeyEvent*>(event));
  if (event->type() != QEvent::MouseButtonDblClick) return false;
  const auto& click = static_cast<const QMouseEvent&>(*event);
  if (click.button() != Qt::LeftButton) return true;
  const QTreeWidgetItem* under = TreeView1->itemAt(click.pos());
  if (under && !under->isSelected()) return false;  // on its arrow, which opens and selects nothing
  cmdGoDate_Click();
  return true;
}

// The toolkit lets the keyboard stand on an entry that is not selected, as after the opening. The first key
// that moves selects it, and up and down go no further, so that no entry is out of the keyboard's reach.
bool frmIndex::SelectsFirst(const QKeyEvent& key) {
  const bool moves = key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown;
  if (!moves || !TreeView1->selectedItems().isEmpty() || !TreeView1->currentItem()) return false;
  TreeView1->currentItem()->setSelected(true);
  return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
}

// The text box's text is not stored here: what was typed while the index stood open is dropped.
void frmIndex::cmdGoDate_Click() {
  const QList<QTreeWidgetItem*> selected = TreeView1->selectedItems();
  if (selected.isEmpty()) return;
  PageInHand::TurnedTo(selected.front()->data(0, Tag).toInt());
  ShowCurrentPage();
  ShowPageHeader();
  Face().txtM->setFocus();
  look::Discard(this);
}

void ShowJournalIndex() {
  auto& index = look::The<frmIndex>();
  index.AddPages();
  index.ShowModeless();
}
