#include "look/AiryRows.h"

#include <QtWidgets/QStyledItemDelegate>

#include "look/Growth.h"
#include "look/Shortening.h"

namespace look {
namespace {

// In pixels of the design.
constexpr int Air = 6;
constexpr int BesideText = 12;  // around a picture and behind the text

class AiryRow : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, Grown(Air));
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const int room = option->rect.width() - option->decorationSize.width() - Grown(BesideText);
    if (!option->icon.isNull() && room > 0) option->font = FittingFont(option->font, option->text, room);
  }
};

}  // namespace

void GiveRowsAir(QAbstractItemView& list) {
  list.setItemDelegate(new AiryRow(&list));
}

}  // namespace look
