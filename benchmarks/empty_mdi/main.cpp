// A Qt program that shows an empty main window with four empty child windows: what any program like ours costs at
// least. The windows have titles, as any have: reading the fonts is a third of the time.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  auto* area = new QMdiArea;
  window.setCentralWidget(area);
  for (int child = 0; child < 4; ++child) {
    QMdiSubWindow* inside = area->addSubWindow(new QWidget);
    inside->setWindowTitle("Empty");
    inside->setGeometry(child * 60, child * 60, 400, 300);
  }
  window.setWindowTitle("empty-mdi");
  window.resize(1016, 700);
  window.show();
  return QApplication::exec();
}
