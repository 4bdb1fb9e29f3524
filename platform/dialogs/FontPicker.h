// The dialog behind AskForFont: the toolkit's own offers no colour.
#pragma once

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include "platform/dialogs/ChoiceList.h"
#include "platform/dialogs/FontQuestion.h"

namespace platform {

class FontPicker : public QDialog {
  Q_OBJECT

 public:
  FontPicker(const FontQuestion& question, QWidget* parent);

  ChoiceList* name;
  ChoiceList* size;
  QCheckBox* bold;
  QCheckBox* italic;
  QCheckBox* underline;
  QCheckBox* strikethru;
  QPushButton* color;
  QLabel* sample;
  QLabel* note;  // why the sample differs from the name, or why nothing can be accepted
  QDialogButtonBox* buttons;

  FontValues Values() const;

 private:
  void MakeChoices();
  void LayOut();
  QLayout* EffectsColumn();
  void MakeSample();
  void NameControls();
  void Stand();
  bool KeepsName() const;
  double Size() const;
  void ChooseColor();
  void ShowColor();
  void ShowSample();
  void Tell(const QString& text);

  FontQuestion question_;
  std::uint32_t chosenColor_ = 0;
};

}  // namespace platform
