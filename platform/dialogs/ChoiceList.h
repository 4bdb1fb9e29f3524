// A box to type in over the list of what is offered.
#pragma once

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>

namespace platform {

// What is chosen stands in the box. An entry that is clicked, or reached with the up and down keys from the
// box, goes into it; what is typed into it leads the list to the entry that is meant.
class ChoiceList : public QWidget {
  Q_OBJECT

 public:
  // Both are children named `name` and `name` + "List".
  ChoiceList(const QString& name, const QStringList& entries, QWidget* parent = nullptr);

  QLineEdit* edit;
  QListWidget* list;

  // With filtering, typing leaves only the entries that hold what is typed. Off by default.
  void SetFiltering(bool on) { filtering_ = on; }
  // Puts a text into the box that need not be among the entries; the whole list stays.
  void Choose(const QString& text);
  // The entry that the box's text means: the one of that name, in any capitals; while filtering, else the one
  // marked in the list. Empty where there is none.
  QString Entry() const;

 Q_SIGNALS:
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Take(QListWidgetItem* item);
  void Type(const QString& text);
  void Filter(const QString& text);
  void Mark(QListWidgetItem* item);
  QListWidgetItem* Find(const QString& text, Qt::MatchFlags how) const;

  bool filtering_ = false;
};

}  // namespace platform
