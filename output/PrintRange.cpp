#include "output/PrintRange.h"

#include <algorithm>

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

template <class Control>
Control* Named(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

}  // namespace

PrintRange::PrintRange(const PrintRequest& request, QWidget* parent) : QGroupBox(tr("Print range"), parent) {
  setObjectName(QStringLiteral("PrintRange"));
  optAll = Named(new QRadioButton(tr("&All pages")), "optAll");
  optSelection = Named(new QRadioButton(tr("&Selection")), "optSelection");
  optPages = Named(new QRadioButton(tr("Pa&ges from")), "optPages");
  spnFrom = MakeNumber("spnFrom", request.from, request.highest);
  spnTo = MakeNumber("spnTo", request.to, request.highest);
  spnFrom->setAccessibleName(tr("first page"));
  spnTo->setAccessibleName(tr("last page"));
  (request.selection ? optSelection : optAll)->setChecked(true);

  auto* to = new QLabel(tr("&to"));
  to->setBuddy(spnTo);
  auto* pages = new QHBoxLayout;
  for (QWidget* part : std::initializer_list<QWidget*>{optPages, spnFrom, to, spnTo}) pages->addWidget(part);
  pages->addWidget(new QLabel(tr("(0 is the title page)")));
  pages->addStretch();
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(optAll);
  rows->addLayout(pages);
  rows->addWidget(optSelection);
}

// Who gives a number means the pages.
QSpinBox* PrintRange::MakeNumber(const char* name, int value, int highest) {
  auto* number = Named(new QSpinBox, name);
  number->setRange(0, std::max(0, highest));
  number->setValue(value);
  connect(number, &QSpinBox::valueChanged, this, [this] { optPages->setChecked(true); });
  return number;
}

PrintOrder PrintRange::Order() const {
  PrintOrder order;
  std::tie(order.from, order.to) = std::minmax(spnFrom->value(), spnTo->value());
  if (optSelection->isChecked()) order.choice = PrintChoice::Selection;
  if (optPages->isChecked()) order.choice = PrintChoice::Pages;
  return order;
}
