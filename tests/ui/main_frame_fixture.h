// The real main window in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include "app/path_text.h"
#include "model/pixel_colour.h"
#include "support/program.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/main_frame.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

class MainFrameTest : public testing::Test {
 protected:
  MainFrameTest() {
    QObject::connect(&watch, &QTimer::timeout, [this] { CloseUnanswered(); });
    watch.start(10000);
  }
  // A box that nobody answers fails the test and does not hold it up; those after it do not even get that time.
  void CloseUnanswered() {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box != nullptr && box == unanswered) {
      ADD_FAILURE() << "Nobody answers " << FromQt(box->objectName() + box->windowTitle());
      watch.start(0);
      box->reject();
    }
    unanswered = box;
  }

  void Start() { StartWith(settings); }
  void StartWith(app::SettingsStore& store) {
    frame = std::make_unique<MainFrame>(folders, store, clock);
    frame->StartUp();
    frame->show();
    QApplication::processEvents();
  }

  QAction* Action(const char* name) const { return frame->findChild<QAction*>(name); }
  QMenu* Menu(const char* name) const { return frame->findChild<QMenu*>(name); }
  template <typename Widget = QWidget>
  Widget* Find(const char* name) const {
    return frame->findChild<Widget*>(name);
  }
  // The picture box of a child window.
  QWidget* Box(const char* form) const { return Find(form)->findChild<QWidget*>("picStd"); }
  QWidget* Swatch(int colour) const { return Find(("swatch_" + std::to_string(colour)).c_str()); }
  // The middle of a picture pixel's box in the zoom window, and a key that is pressed there.
  QPoint At(int x, int y) const {
    const model::Rect box = frame->Zoom().Area().PixelRect(x, y);
    return {box.x + box.width / 2, box.y + box.height / 2};
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(Box("frmZoom"), key, modifiers); }
  const model::PictureImage& Picture() const { return frame->Document().picture; }
  QString Panel(const char* name) const { return Find<QLabel>(name)->text(); }
  QPoint ZoomOrigin() const { return {frame->Zoom().Area().ZoomOriginX(), frame->Zoom().Area().ZoomOriginY()}; }

  std::string WriteKoala(const std::string& name) const { return support::WriteKoala(folder / name); }

  // What the command prompt has answered.
  QStringList PromptLines() const {
    QStringList lines;
    const auto* model = Find<QListView>("lstHistory")->model();
    for (int row = 0; row < model->rowCount(); ++row) lines << model->index(row, 0).data().toString();
    return lines;
  }
  bool PictureHasFocus() const {
    return Find("frmZoom") == frame->focusWidget() || Find("frmZoom")->isAncestorOf(frame->focusWidget());
  }

  // QTest's own move tells no buttons.
  static void MoveMouse(QWidget* widget, QPoint at, Qt::MouseButtons held) {
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, held, {});
    QApplication::sendEvent(widget, &move);
  }

  // Does `work` with the next dialog, once it is open.
  template <typename Dialog = QDialog, typename Work>
  static void InNextDialog(Work work) {
    QTimer::singleShot(0, [work] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      work(*dialog);
    });
  }
  // Types into fields of a settings dialog, which are named after their settings, and presses its button.
  static void FillIn(const QDialog& dialog, const std::vector<std::pair<const char*, QString>>& fields) {
    for (const auto& [name, text] : fields) dialog.findChild<QLineEdit*>(name)->setText(text);
    dialog.findChild<QAbstractButton*>("cmdStd")->click();
  }
  void Prefer(const char* preference, bool on) const {
    InNextDialog([preference, on](QDialog& dialog) {
      dialog.findChild<QCheckBox*>(preference)->setChecked(on);
      FillIn(dialog, {});
    });
    Action("mnuPreferences")->trigger();
  }
  // Answers the next message box with `button` and keeps its text.
  void AnswerNext(QMessageBox::StandardButton button) {
    InNextDialog<QMessageBox>([this, button](QMessageBox& box) {
      box_text = box.text();
      QTest::mouseClick(box.button(button), Qt::LeftButton);
    });
  }

  support::TempFolder folder;
  app::ProgramFolders folders{folder / "program"};
  support::MapSettings settings;
  support::FixedClock clock;
  std::unique_ptr<MainFrame> frame;
  QString box_text;
  QTimer watch;
  QPointer<QDialog> unanswered;
};

}  // namespace kelvo::ui
