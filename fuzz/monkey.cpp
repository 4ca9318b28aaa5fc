// Random hands on the real main window: nothing that they do may crash it, hang it, let a window show something else
// than the picture in memory, change the picture without a step, or leave BACKUP in disorder. KELVO_MONKEY_EVENTS and
// KELVO_MONKEY_SEED say how long and which.
#include <QAbstractButton>
#include <QDialog>
#include <QDir>
#include <QDrag>
#include <QFileDialog>
#include <QLineEdit>
#include <QWheelEvent>
#include <random>

#include "files/picture_format.h"
#include "model/full_view.h"
#include "support/pictures.h"
#include "support/platform.h"
#include "ui/desks/history_desk.h"
#include "ui/main_frame_fixture.h"
#include "ui/windows/frm_bmp_view.h"

namespace kelvo::ui {
namespace {

constexpr int kEventsBetweenChecks = 500;
constexpr int kAnswerMilliseconds = 1;
// A key more often than others: what moves, chooses, paints and submits.
constexpr std::array kKeys{Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space,  Qt::Key_Tab,    Qt::Key_Left, Qt::Key_Right,
                           Qt::Key_Up,     Qt::Key_Down,   Qt::Key_PageUp, Qt::Key_Home,   Qt::Key_End,  Qt::Key_F3,
                           Qt::Key_F11,    Qt::Key_Delete, Qt::Key_Alt,    Qt::Key_Control};
constexpr std::array kModifiers{Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
                                Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

class Monkey : public MainFrameTest {
 protected:
  Monkey() {
    settings.values["CodenetSettings/C64IP"] = settings.values["CodenetGUI/C64IP"] = "127.0.0.1";
    QDir::setCurrent(OwnFolder());  // what it saves under bare names goes there
    for (const int number : {1, 2, 4}) {
      const auto name = "a000" + std::to_string(number) + ".kvp";
      support::WriteFile(folder / name, files::Encode(support::RandomPicture(static_cast<unsigned>(number))));
    }
    QImage image(50, 30, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    image.save(OwnFolder() + "/image.png");
    OfferFrames();
    Start();
    AnswerSoon();
  }

  QString OwnFolder() const { return ToQt(app::TextFromPath(folder.Path())); }
  // It types other texts into the settings than those under which there are frames.
  void OfferFrames() {
    settings.values["AnimProperties/Folder"] = FromQt(OwnFolder() + '/');
    settings.values["AnimProperties/AnimPrefix"] = "a";
  }

  static int FromEnvironment(const char* name, int otherwise) {
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
  }
  int Random(int below) { return below < 1 ? 0 : static_cast<int>(random_() % static_cast<unsigned>(below)); }
  template <typename Items>
  auto OneOf(const Items& items) {
    return items[static_cast<decltype(items.size())>(Random(static_cast<int>(items.size())))];
  }

  // A visible widget of any of the program's windows; the zoom window's picture more often than others.
  QWidget* AnyWidget() {
    if (Random(3) == 0) return Box("frmZoom");
    QList<QWidget*> visible;
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->isVisible()) visible << widget;
    }
    return visible.isEmpty() ? frame.get() : OneOf(visible);
  }
  QPoint AnyPlace(const QWidget& widget) { return {Random(widget.width() + 8) - 4, Random(widget.height() + 8) - 4}; }

  void Mouse() {
    QPointer<QWidget> widget = AnyWidget();
    const Qt::MouseButton button = OneOf(std::array{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
    const Qt::KeyboardModifiers modifiers = OneOf(kModifiers);
    using MouseEvent = void (*)(QWidget*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    const auto act = [&](MouseEvent what) {
      if (widget && widget->isVisible()) what(widget, button, modifiers, AnyPlace(*widget), -1);
    };
    switch (Random(5)) {
      case 0:
        return act(&QTest::mouseDClick);
      case 1: {  // a drag, sometimes without its release
        act(&QTest::mousePress);
        for (int move = Random(6); move > 0 && widget; --move) {
          const QPoint at = AnyPlace(*widget);
          QMouseEvent event(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, button, modifiers);
          QApplication::sendEvent(widget, &event);
        }
        if (Random(10) != 0) act(&QTest::mouseRelease);
        return;
      }
      default:
        return act(&QTest::mouseClick);
    }
  }
  void Wheel() {
    QWidget* widget = AnyWidget();
    const QPoint at = AnyPlace(*widget);
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {Random(3) * 120 - 120, Random(3) * 120 - 120}, Qt::NoButton,
                      OneOf(kModifiers), Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }
  void Key() {
    QWidget* focus = QApplication::focusWidget();
    QWidget* widget = focus != nullptr && Random(2) == 0 ? focus : AnyWidget();
    const Qt::Key key = Random(2) == 0 ? OneOf(kKeys) : static_cast<Qt::Key>(Qt::Key_Space + Random(64));
    QTest::keyClick(widget, key, OneOf(kModifiers));
  }
  void MenuEntry() {
    QList<QAction*> enabled;
    for (QAction* action : frame->findChildren<QAction*>()) {
      if (action->isEnabled() && !action->objectName().isEmpty()) enabled << action;
    }
    OneOf(enabled)->trigger();
  }

  // A new timer each time: one that is at work does not fire again in the dialog that its answer opened.
  void AnswerSoon() {
    QTimer::singleShot(kAnswerMilliseconds, &lifetime_, [this] {
      AnswerSoon();
      Answer();
    });
  }
  // Whoever waits for an answer gets one: a dialog, a menu, a drag.
  void Answer() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
      return Random(2) == 0 ? static_cast<void>(popup->close()) : QTest::keyClick(popup, OneOf(kKeys));
    }
    QDrag::cancel();
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    if (qobject_cast<QFileDialog*>(dialog) != nullptr) return AnswerWithAFile(*dialog);
    const auto fields = dialog->findChildren<QLineEdit*>();
    const auto buttons = dialog->findChildren<QAbstractButton*>();
    switch (Random(4)) {
      case 0:
        return dialog->reject();
      case 1:
        if (!fields.isEmpty()) QTest::keyClicks(OneOf(fields), QString("pic%1").arg(Random(4)));
        return;
      case 2:
        return QTest::keyClick(dialog, Qt::Key_Return);
      default:
        if (!buttons.isEmpty()) OneOf(buttons)->click();
    }
  }

  // Never anywhere but in its own folder: nothing of the machine's is at risk.
  void AnswerWithAFile(QDialog& dialog) {
    if (Random(2) == 0) return dialog.reject();
    const QStringList here = QDir(OwnFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    const QString name = here.isEmpty() || Random(2) == 0 ? QString("pic%1").arg(Random(4)) : OneOf(here);
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QDir(OwnFolder()).filePath(name));
    QTest::keyClick(&dialog, Qt::Key_Return);
  }

  void DoAnything() {
    const int kind = Random(100);
    if (kind < 55) return Mouse();
    if (kind < 65) return Wheel();
    if (kind < 94) return Key();
    if (kind < 99) return MenuEntry();
    QApplication::processEvents();
    if (!frame->isVisible()) frame->show();
  }

  // While frames play, the full view shows them instead. A closed animation window may still be there beside a new one.
  void StopPlaying() {
    for (auto* play : frame->findChildren<QAbstractButton*>("cmdPlay")) {
      if (play->text().contains("Stop")) play->click(), ++plays;
    }
  }
  void ExpectTheViewShowsThePicture() {
    OfferFrames();
    StopPlaying();
    QApplication::processEvents();
    model::Surface expected(model::kFullViewWidth, model::kFullViewHeight);
    app::NoProgress no_progress;
    model::DrawPicture(frame->Document().picture, expected, no_progress);
    const QImage shown = Find<frmBMPView>("frmBMPView")->Picture();
    for (int y = 0; y < model::kFullViewHeight; ++y) {
      for (int x = 0; x < model::kFullViewWidth; ++x) {
        ASSERT_EQ(shown.pixel(x, y), expected.At(x, y)) << x << ' ' << y;
      }
    }
  }

  // Whoever changes the picture tells of it, so the current step is the picture.
  void ExpectEveryChangeIsAStep() {
    frame->Desk().LoseFocus();  // ends a stroke
    frame->History().Settle();
    auto& steps = frame->History().Steps();
    EXPECT_EQ(steps.PictureAt(steps.Current()), frame->Document().picture);
  }

  // Whatever lies in BACKUP is the user's alone, and whole.
  void ExpectBackupsAreInOrder() const {
    for (const auto& entry : std::filesystem::directory_iterator(folders.Backup())) {
      const std::string name = app::TextFromPath(entry.path().filename());
      EXPECT_FALSE(name.starts_with(".kelvo-")) << name;
      if (support::kIsWindows) continue;  // rights come from the folder
      constexpr auto kOthers = std::filesystem::perms::group_all | std::filesystem::perms::others_all;
      EXPECT_EQ(entry.status().permissions() & kOthers, std::filesystem::perms::none) << name;
    }
  }

  int plays = 0;
  std::mt19937 random_;
  QObject lifetime_;
};

TEST_F(Monkey, NeitherCrashesNorHangsNorConfusesTheViews) {
  const int events = FromEnvironment("KELVO_MONKEY_EVENTS", 4000);
  const int seed = FromEnvironment("KELVO_MONKEY_SEED", 1);
  std::cout << events << " events, KELVO_MONKEY_SEED=" << seed << std::endl;
  random_.seed(static_cast<unsigned>(seed));
  int changes = 0;
  model::PictureImage before = frame->Document().picture;
  for (int event = 1; event <= events && !HasFatalFailure(); ++event) {
    DoAnything();
    if (event % kEventsBetweenChecks != 0) continue;
    ExpectTheViewShowsThePicture();
    ExpectEveryChangeIsAStep();
    ExpectBackupsAreInOrder();
    if (frame->Document().picture != before) ++changes;
    before = frame->Document().picture;
  }
  EXPECT_GT(changes, 0) << "it has not painted";
  std::cout << changes << " changes and " << plays << " animations seen at the checks" << std::endl;
  frame->Files().New();  // nothing is left to be asked for
}

}  // namespace
}  // namespace kelvo::ui
