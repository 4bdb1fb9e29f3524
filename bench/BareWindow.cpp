// The floor of every start: a bare window of the same toolkit with a toolbar, one text box and one theme
// picture.
#include <QtGui/QPainter>
#include <QtNetwork/QLocalServer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>

#include "look/Theme.h"

namespace {

class Backed : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, look::CurrentTheme().large); }
};

}  // namespace

int main(int argc, char** argv) {
  [[maybe_unused]] const QApplication application(argc, argv);
  const QLocalServer sameLibraries;
  look::PutOnTheme(0);
  QMainWindow window;
  QToolBar* bar = window.addToolBar(QStringLiteral("bar"));
  bar->addAction(QStringLiteral("New"));
  auto* back = new Backed;
  window.setCentralWidget(back);
  auto* text = new QTextEdit(back);
  text->setGeometry(66, 58, 300, 300);
  window.resize(565, 648);
  window.show();
  return QApplication::exec();
}
