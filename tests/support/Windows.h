// The windows over a scratch folder, all unloaded at the end.
#pragma once

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>

#include "look/Form.h"
#include "tests/support/Fixtures.h"

namespace fixture {

class Windows : public Desk {
 protected:
  ~Windows() override { look::UnloadAllForms(); }

  static void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
};

}  // namespace fixture
