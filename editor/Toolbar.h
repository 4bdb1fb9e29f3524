// The journal window's toolbar: eighteen entries, buttons and separators, told apart by their keys.
#pragma once

#include <vector>

#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

class Toolbar : public QWidget {
  Q_OBJECT

 public:
  explicit Toolbar(QWidget* parent = nullptr);

  // Positions count from 1, separators included. A separator keeps a caption that nobody sees.
  int Count() const;
  QString Caption(int position) const;
  void SetCaption(int position, const QString& caption);
  // Null for a separator.
  QToolButton* Button(int position) const;
  QToolButton* Button(const QString& key) const;

 Q_SIGNALS:
  void ButtonClick(const QString& key);

 protected:
  // The arrows lead from button to button, Home and End to the ends.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool LeadOn(const QObject* from, int key) const;

  struct Entry {
    QString key;  // empty: a separator
    QString caption;
    QToolButton* button = nullptr;
  };
  std::vector<Entry> entries_;
};
