// A month calendar that holds one date.
#pragma once

#include <QtWidgets/QCalendarWidget>

class DateCalendar : public QCalendarWidget {
  Q_OBJECT

 public:
  explicit DateCalendar(QWidget* parent = nullptr);

  // Days since 30 December 1899. While the day that was set stands selected, the very number that was set;
  // for another day, that day with the time of day of the one that was set. What lies beyond the years 100
  // to 9999 is set as the nearest day in them.
  double Value() const;
  void SetValue(double date);

  // Of all but the days themselves, which lie on paper; invalid for the program's own.
  void SetBackColor(const QColor& color);
  QColor BackColor() const;

 Q_SIGNALS:
  // A double click among the days, or Enter on a day.
  void DblClick();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintCell(QPainter* painter, const QRect& cell, QDate day) const override;

 private:
  void OpenHeadToKeys();
  void DressHead();
  bool IsOfTheMonth(QDate day) const;
  void FollowMonth(int year, int month);
  void TellDate() const;
  bool EndsYearBox(const QEvent& event);

  double value_ = 0;
  QColor backColor_;
};
