// What of a journal is to be printed, as a part of the print dialog.
#pragma once

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include "output/PrintOrder.h"

class PrintRange : public QGroupBox {
  Q_OBJECT

 public:
  explicit PrintRange(const PrintRequest& request, QWidget* parent = nullptr);

  QRadioButton* optAll;
  QRadioButton* optSelection;
  QRadioButton* optPages;
  QSpinBox* spnFrom;
  QSpinBox* spnTo;

  // The choice and the range, whichever of its ends was given first; no paper.
  PrintOrder Order() const;

 private:
  QSpinBox* MakeNumber(const char* name, int value, int highest);
};
