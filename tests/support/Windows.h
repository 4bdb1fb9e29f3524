// The windows over a scratch folder, all unloaded at the end.
#pragma once

#include "look/Form.h"
#include "tests/support/Fixtures.h"

namespace fixture {

// Closes each modal dialog as soon as it is up.
class Dismissal {
 public:
  Dismissal() {
    QObject::connect(&timer_, &QTimer::timeout, [] {
      if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
    });
    timer_.start(0);
  }

 private:
  QTimer timer_;
};

class Windows : public Desk {
 protected:
  ~Windows() override { look::UnloadAllForms(); }

  static void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
};

}  // namespace fixture
