// The real main window on a real display: how long until what an artist does is to be seen.
//
// Reports each goal and ends with 1 when one is not met. Run it through benchmarks/window-speed.
#include <QDir>
#include <QElapsedTimer>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <limits>

#include "anim/anim_settings.h"
#include "app/path_text.h"
#include "app/whole_file.h"
#include "c64out/output_settings.h"
#include "files/picture_format.h"
#include "row.h"
#include "support/files.h"
#include "support/pictures.h"
#include "ui/application.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/main_frame.h"
#include "ui/ports/qt_settings.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/prompt_lines.h"

namespace {

using kelvo::ui::MainFrame;

constexpr double kDisplayFrame = 1000.0 / 60;

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

bool Tell(const char* what, double milliseconds, double limit) {
  return kelvo::bench::Report({what, milliseconds, "ms", "", 0, limit});
}

void Mouse(QWidget* box, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, box->mapToGlobal(at), button, held, {});
  QApplication::sendEvent(box, &event);
}

double FillTime(MainFrame& frame, QWidget* box) {
  frame.Desk().ChooseTool(kelvo::editing::ToolId::kFill);
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
  frame.Desk().ChooseTool(kelvo::editing::ToolId::kDraw);
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

// Makes frames of different pictures.
void WriteFrames(const std::filesystem::path& folder, int first, int last) {
  kelvo::model::PictureImage picture = kelvo::support::RandomPicture(1);
  for (int number = first; number <= last; ++number) {
    picture.BackgroundColour = kelvo::model::C64Colour::FromByte(static_cast<std::uint8_t>(number));
    kelvo::files::Sign(picture);
    const std::string name = "anim" + QString::number(number).rightJustified(4, '0').toStdString() + ".kvp";
    kelvo::app::WriteWholeFile(folder / name, kelvo::files::Encode(picture), kelvo::app::Flush::kLater);
  }
}

// Switches the animation mode on with those frames.
void BeginAnimation(MainFrame& frame, kelvo::app::SettingsStore& settings, const std::filesystem::path& folder) {
  settings.Write(kelvo::anim::kFolder, kelvo::app::TextFromPath(folder) + "/");
  frame.Files().OpenPicture(kelvo::app::TextFromPath(folder / "anim0001.kvp"));
  frame.Animation().Mode().ToggleAnimMode();
}

// The longest of some changes to the next frame, after each of which both windows are painted. The frame that is left
// is unchanged, so nothing waits for the disk.
double FrameChange(MainFrame& frame, QWidget* box) {
  auto* next = frame.findChild<QPushButton*>("cmdStd_1");
  PaintWatch watch(box);
  double longest = 0;
  for (int change = 0; change < 20; ++change) {
    const double begin = watch.Now();
    next->click();
    while (watch.LastPaint() < begin) QApplication::processEvents();
    longest = std::max(longest, watch.LastPaint() - begin);
  }
  return longest;
}

// From the menu to the frames on screen.
double StripFirstShow(MainFrame& frame) {
  PaintWatch watch(frame.findChild<QListView*>("lstFrames")->viewport());
  const double begin = watch.Now();
  frame.findChild<QAction*>("mnuFrames")->trigger();
  while (watch.LastPaint() < begin) QApplication::processEvents();
  QApplication::processEvents();
  return watch.LastPaint() - begin;
}

// The longest of some scrolls by what the strip shows, each to frames that were not seen before.
double StripScroll(MainFrame& frame) {
  auto* strip = frame.findChild<QListView*>("lstFrames");
  PaintWatch watch(strip->viewport());
  double longest = 0;
  for (int scroll = 0; scroll < 100; ++scroll) {
    const double begin = watch.Now();
    strip->horizontalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    while (watch.LastPaint() < begin) QApplication::processEvents();
    longest = std::max(longest, watch.LastPaint() - begin);
  }
  return longest;
}

// By how much the latest of 100 frames at 25 a second misses its turn.
double PlayLateness(MainFrame& frame, QWidget* full_view) {
  frame.findChild<QSpinBox*>("spnRate")->setValue(25);
  PaintWatch watch(full_view);
  const double begin = watch.Now();
  frame.findChild<QPushButton*>("cmdPlay")->click();
  double latest = 0, seen = watch.LastPaint();
  int frames = 0;
  while (frames < 100) {
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (watch.LastPaint() == seen) continue;
    seen = watch.LastPaint();
    latest = std::max(latest, seen - begin - frames * 40.0);
    ++frames;
  }
  frame.findChild<QPushButton*>("cmdPlay")->click();
  return latest;
}

// From the click to the program beside the picture, in milliseconds.
double BuildTime(MainFrame& frame, kelvo::app::SettingsStore& settings, const kelvo::app::ProgramFolders& folders) {
  folders.Create();
  folders.Seed(KELVO_SHARE);
  kelvo::support::WriteText(folders.Root() / "x64", "an emulator, to look at");
  settings.Write(kelvo::c64out::kVicePath, kelvo::app::TextFromPath(folders.Root()));
  frame.Files().OpenPicture(kelvo::app::TextFromPath(folders.Gfx() / "landscape.kvp"));
  QElapsedTimer clock;
  clock.start();
  frame.Builds().BuildCompoPic(kelvo::c64out::kCreatePrg);
  const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
  return exists(folders.Gfx() / "landscape.prg") ? milliseconds : std::numeric_limits<double>::infinity();
}

// What one line more costs a prompt that holds `lines` already, in microseconds.
double PromptLineTime(int lines) {
  kelvo::ui::PromptLines prompt;
  for (int line = 0; line < lines; ++line) prompt.CommandPromptList("LINE");
  QElapsedTimer clock;
  clock.start();
  constexpr int kMore = 1000;
  for (int line = 0; line < kMore; ++line) prompt.CommandPromptList("LINE");
  return static_cast<double>(clock.nsecsElapsed()) / 1000 / kMore;
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
  const QTemporaryDir frames;
  const auto frames_folder = kelvo::app::PathFromText(kelvo::ui::FromQt(frames.path()));
  WriteFrames(frames_folder, 1, 100);
  BeginAnimation(frame, settings, frames_folder);
  met &= Tell("longest of 20 changes to the next frame", FrameChange(frame, box), 2 * kDisplayFrame);
  QWidget* full_view = frame.findChild<QWidget*>("frmBMPView")->findChild<QWidget*>("picStd");
  met &= Tell("latest of 100 frames played at 25 a second", PlayLateness(frame, full_view), kDisplayFrame);
  WriteFrames(frames_folder, 101, 1000);
  met &= Tell("first show of the strip of 1000 frames", StripFirstShow(frame), 50);
  met &= Tell("longest of 100 scrolls of the frame strip", StripScroll(frame), 2 * kDisplayFrame);
  met &= Tell("a whole PRG build", BuildTime(frame, settings, folders), 2000);
  const double first_lines = PromptLineTime(0);
  met &= kelvo::bench::Report(
      {"prompt line behind 100000 others", PromptLineTime(100000), "us", "first lines", first_lines, 3 * first_lines});
  return met ? 0 : 1;
}
