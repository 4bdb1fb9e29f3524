#include "platform/dialogs/ChoiceList.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

namespace platform {

ChoiceList::ChoiceList(const QString& name, const QStringList& entries, QWidget* parent)
    : QWidget(parent), edit(new QLineEdit(this)), list(new QListWidget(this)) {
  edit->setObjectName(name);
  list->setObjectName(name + QStringLiteral("List"));
  list->setUniformItemSizes(true);
  list->addItems(entries);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addWidget(edit);
  column->addWidget(list);
  setFocusProxy(edit);
  edit->installEventFilter(this);
  connect(edit, &QLineEdit::textEdited, this, &ChoiceList::Type);
  connect(list, &QListWidget::itemClicked, this, &ChoiceList::Take);
  // Not the current entry: the list makes one current when it gets the focus, which is no choice.
  connect(list, &QListWidget::itemSelectionChanged, this, [this] {
    if (!list->selectedItems().isEmpty()) Take(list->selectedItems().front());
  });
}

void ChoiceList::Choose(const QString& text) {
  edit->setText(text);
  Filter({});
  Mark(Find(text, Qt::MatchFixedString));
  Q_EMIT Changed();
}

QString ChoiceList::Entry() const {
  if (edit->text().isEmpty()) return {};
  if (const QListWidgetItem* named = Find(edit->text(), Qt::MatchFixedString)) return named->text();
  const QList<QListWidgetItem*> marked = list->selectedItems();
  return filtering_ && !marked.isEmpty() ? marked.front()->text() : QString();
}

// The keys that move in the list work from the box.
bool ChoiceList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  const bool moves = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down || key->key() == Qt::Key_PageUp ||
                     key->key() == Qt::Key_PageDown;
  if (moves) QCoreApplication::sendEvent(list, event);
  return moves;
}

void ChoiceList::Take(QListWidgetItem* item) {
  edit->setText(item->text());
  Q_EMIT Changed();
}

void ChoiceList::Type(const QString& text) {
  if (filtering_) Filter(text);
  QListWidgetItem* meant = Find(text, Qt::MatchFixedString);
  if (!meant && filtering_ && !text.isEmpty()) meant = Find(text, Qt::MatchStartsWith);
  if (!meant && filtering_ && !text.isEmpty()) meant = Find(text, Qt::MatchContains);
  Mark(meant);
  Q_EMIT Changed();
}

void ChoiceList::Filter(const QString& text) {
  for (int row = 0; row < list->count(); ++row)
    list->item(row)->setHidden(!list->item(row)->text().contains(text, Qt::CaseInsensitive));
}

// Shows what the box means, without putting it there.
void ChoiceList::Mark(QListWidgetItem* item) {
  const QSignalBlocker quiet(list);
  list->setCurrentItem(item);
  if (!item) return list->clearSelection();
  list->scrollToItem(item, QAbstractItemView::PositionAtCenter);
}

QListWidgetItem* ChoiceList::Find(const QString& text, Qt::MatchFlags how) const {
  const QList<QListWidgetItem*> found = list->findItems(text, how);
  return found.isEmpty() ? nullptr : found.front();
}

}  // namespace platform
