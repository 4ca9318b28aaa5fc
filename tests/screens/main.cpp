// Measures the real main window on the display that there is: prints where every window stands, and ends with 1 when
// something is out of reach or cut off. scripts/screens runs it on many displays.
#include <QAbstractButton>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <cstdio>

#include "files/picture_format.h"
#include "support/program.h"
#include "ui/application.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/main_frame.h"
#include "ui/ports/qt_text.h"

namespace {

using namespace kelvo;

constexpr int kLeastHeight = 400;  // a lower window need not show all of its status bar

QString Text(const QRect& rect) {
  return QString("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

class Measurement {
 public:
  explicit Measurement(ui::MainFrame& frame) : frame_(frame), area_(*frame.findChild<QMdiArea*>("mdiArea")) {}

  void Take(const char* when);
  int Faults() const { return faults_; }

 private:
  void Expect(bool good, const QString& what) {
    if (good) return;
    ++faults_;
    std::printf("  WRONG: %s\n", qPrintable(what));
  }
  // All that can be scrolled to, in the area's coordinates.
  QRect Reach() const {
    const QScrollBar &across = *area_.horizontalScrollBar(), &down = *area_.verticalScrollBar();
    return area_.viewport()->rect().adjusted(across.minimum() - across.value(), down.minimum() - down.value(),
                                             across.maximum() - across.value(), down.maximum() - down.value());
  }
  void MeasureWindows();
  void MeasureControls(const QWidget& window);

  ui::MainFrame& frame_;
  QMdiArea& area_;
  int faults_ = 0;
};

void Measurement::Take(const char* when) {
  QTest::qWait(300);
  std::printf(" %s\n", when);
  const QRect free = frame_.screen()->availableGeometry();
  std::printf("  %-16s %-20s of %s\n", "main window", qPrintable(Text(frame_.frameGeometry())), qPrintable(Text(free)));
  Expect(free.contains(frame_.frameGeometry()), "the main window is larger than the screen");
  MeasureWindows();
  for (const QWidget* bar : {static_cast<QWidget*>(frame_.statusBar()), frame_.findChild<QWidget*>("Toolbar1")}) {
    std::printf("  %-16s %s\n", qPrintable(bar->objectName()), qPrintable(Text(bar->geometry())));
    Expect(frame_.rect().contains(bar->geometry()), bar->objectName() + " is beyond the main window");
    MeasureControls(*bar);
  }
}

void Measurement::MeasureWindows() {
  QList<QRect> before;
  for (const QMdiSubWindow* window : area_.subWindowList()) {
    if (!window->isVisible()) continue;
    const QRect place = window->geometry();
    const QRect bar(place.topLeft(), QSize(place.width(), window->widget()->y()));
    const bool is_seen = area_.viewport()->rect().contains(place);
    std::printf("  %-16s %-20s title %-18s %s\n", qPrintable(window->widget()->objectName()), qPrintable(Text(place)),
                qPrintable(Text(bar)), is_seen ? "" : "scrolled to");
    Expect(Reach().contains(place), window->objectName() + " is out of reach");
    for (const QRect& other : before) Expect(!other.intersects(place), window->objectName() + " covers another");
    before << place;
    MeasureControls(*window->widget());
  }
}

void Measurement::MeasureControls(const QWidget& window) {
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    if (!control->isVisible() || control->objectName().startsWith("qt_")) continue;
    const QRect place(control->mapTo(&window, QPoint()), control->size());
    const bool is_control = qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QLabel*>(control);
    const bool is_panel = window.window()->height() < kLeastHeight && control->objectName().startsWith("pnl");
    if (is_control && !is_panel) {
      Expect(window.rect().contains(place), control->objectName() + " is cut: " + Text(place));
    }
    const auto* label = qobject_cast<const QLabel*>(control);
    if (label == nullptr || label->text().isEmpty()) continue;
    const QSize needed = label->fontMetrics().size(0, label->text());
    Expect(needed.width() <= label->width() && needed.height() <= label->height() + 1,
           "the text of " + label->objectName() + " is cut: " + label->text());
    Expect(!label->text().contains(QChar(0x2026)), label->objectName() + " is too narrow: " + label->text());
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir own_settings;
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, own_settings.path());
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  const ui::KelvoApplication application(argc, argv);
  const support::TempFolder folder;
  const app::ProgramFolders folders(folder / "program");
  support::MapSettings settings;
  settings.values["AnimProperties/Folder"] = app::TextFromPath(folder.Path()) + "/";
  // As left by a much larger display.
  settings.values["Settings/MDIFormMenuPlace"] = "2500,1500,1800,1100,0";
  settings.values["Settings/frmColors_framePlace"] = "1700,1000,1";
  const app::SystemClock clock;
  int faults = 0;
  for (const bool first : {true, false}) {
    support::MapSettings none;
    none.values["AnimProperties/Folder"] = settings.values["AnimProperties/Folder"];
    ui::MainFrame frame(folders, first ? none : settings, clock);
    frame.StartUp();
    frame.show();
    (void)QTest::qWaitForWindowExposed(&frame);
    Measurement measurement(frame);
    measurement.Take(first ? "first start" : "with places of a larger display");
    if (first) {
      if (argc > 1) {  // as long as somebody wants to look at it
        std::fflush(stdout);
        QTest::qWait(QString(argv[1]).toInt());
      }
      frame.resize(frame.minimumSize());
      QTest::qWait(200);
      frame.ArrangeWindows();
      measurement.Take("as small as it gets, arranged");
      frame.resize(frame.screen()->availableSize() - (frame.frameSize() - frame.size()));
      QTest::qWait(200);
      frame.move(frame.screen()->availableGeometry().topLeft());
      frame.ArrangeWindows();
      frame.Windows().Toggle(ui::ChildWindowId::kPrompt);
      measurement.Take("as large as the screen, arranged, with the prompt");
    }
    faults += measurement.Faults();
  }
  std::printf(faults == 0 ? " all within reach\n" : " %d faults\n", faults);
  return faults == 0 ? 0 : 1;
}
