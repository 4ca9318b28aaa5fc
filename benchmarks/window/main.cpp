// The real main window on a real display: how long until what an artist does is to be seen.
//
// Prints one line for each goal and ends with 1 when one is not met. Run it through benchmarks/window-speed.
#include <QDir>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "app/path_text.h"
#include "ui/application.h"
#include "ui/main_frame.h"
#include "ui/qt_settings.h"
#include "ui/qt_text.h"

namespace {

using kelvo::ui::MainFrame;

// Notes when a widget was last painted.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget* widget) {
    clock_.start();
    widget->installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) last_ = clock_.nsecsElapsed();
    return false;
  }
  double Now() const { return static_cast<double>(clock_.nsecsElapsed()) / 1e6; }
  double LastPaint() const { return static_cast<double>(last_) / 1e6; }

 private:
  QElapsedTimer clock_;
  qint64 last_ = 0;
};

bool Tell(const char* what, double milliseconds, double goal) {
  std::printf("%-48s %8.2f ms  goal %5.1f ms  %s\n", what, milliseconds, goal,
              milliseconds <= goal ? "met" : "NOT MET");
  return milliseconds <= goal;
}

void Mouse(QWidget* box, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, box->mapToGlobal(at), button, held, {});
  QApplication::sendEvent(box, &event);
}

double FillTime(MainFrame& frame, QWidget* box) {
  frame.Desk().ChooseTool(2);
  PaintWatch watch(box);
  QTest::qWait(100);
  const double begin = watch.Now();
  Mouse(box, QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton);
  while (watch.LastPaint() < begin) QApplication::processEvents();
  QApplication::processEvents();
  Mouse(box, QEvent::MouseButtonRelease, {300, 300}, {});
  return watch.LastPaint() - begin;
}

// 2000 moves, one a millisecond, as a fast mouse sends them.
double DragBacklog(MainFrame& frame, QWidget* box) {
  frame.Desk().ChooseTool(1);
  PaintWatch watch(box);
  Mouse(box, QEvent::MouseButtonPress, {10, 10}, Qt::LeftButton);
  const double begin = watch.Now();
  for (int step = 0; step < 2000; ++step) {
    const QPoint at(10 + step * 7 % 630, 10 + step * 3 % 570);
    Mouse(box, QEvent::MouseMove, at, Qt::LeftButton);
    do {
      QApplication::processEvents();
    } while (watch.Now() < begin + step);
  }
  const double last_event = watch.Now();
  Mouse(box, QEvent::MouseMove, {600, 500}, Qt::LeftButton);
  while (watch.LastPaint() < last_event) QApplication::processEvents();
  Mouse(box, QEvent::MouseButtonRelease, {600, 500}, {});
  return watch.LastPaint() - begin - 2000;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setOrganizationName("Kelvo");
  QCoreApplication::setApplicationName("KelvoBenchmark");
  kelvo::ui::KelvoApplication application(argc, argv);
  const QTemporaryDir folder;
  const kelvo::app::ProgramFolders folders(kelvo::app::PathFromText(kelvo::ui::FromQt(folder.path())));
  kelvo::ui::QtSettings settings;
  const kelvo::app::SystemClock clock;
  MainFrame frame(folders, settings, clock);
  frame.StartUp();
  frame.show();
  if (!QTest::qWaitForWindowExposed(&frame)) return 2;
  QWidget* box = frame.findChild<QWidget*>("frmZoom")->findChild<QWidget*>("picStd");
  bool met = Tell("press to filled blank picture on screen", FillTime(frame, box), 40);
  met &= Tell("last of 2000 drag events to its pixel on screen", DragBacklog(frame, box), 50);
  return met ? 0 : 1;
}
