#include "look/AiryRows.h"

#include <QtWidgets/QStyledItemDelegate>

namespace look {
namespace {

constexpr int Air = 6;  // pixels

class AiryRow : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, Air);
  }
};

}  // namespace

void GiveRowsAir(QAbstractItemView& list) {
  list.setItemDelegate(new AiryRow(&list));
}

}  // namespace look
