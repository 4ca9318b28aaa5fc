// The real main window in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "app/path_text.h"
#include "support/pictures.h"
#include "support/recorders.h"
#include "support/temp_folder.h"
#include "ui/main_frame.h"
#include "ui/qt_text.h"

namespace kelvo::ui {

class MainFrameTest : public testing::Test {
 protected:
  void Start() {
    frame = std::make_unique<MainFrame>(folders, settings, clock);
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
  QString Panel(const char* name) const { return Find<QLabel>(name)->text(); }

  std::string WriteKoala(const std::string& name) {
    support::WriteFile(folder / name, support::CountingBytes(10003));
    return app::TextFromPath(folder / name);
  }

  // Answers the next message box with `button` and keeps its text.
  void AnswerNext(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      box_text = box->text();
      QTest::mouseClick(static_cast<QWidget*>(box->button(button)), Qt::LeftButton);
    });
  }

  support::TempFolder folder;
  app::ProgramFolders folders{folder / "program"};
  support::MapSettings settings;
  support::FixedClock clock;
  std::unique_ptr<MainFrame> frame;
  QString box_text;
};

}  // namespace kelvo::ui
