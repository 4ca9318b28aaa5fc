// The frame of a child window of the main window.
#pragma once

#include <QMdiSubWindow>

namespace kelvo::ui {

// Lives as long as the main window: its close box hides it and says so, and shows again what it hid.
class ChildWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  // Frames `form`, whose title, size and objectName it takes.
  explicit ChildWindow(QWidget* form);

 signals:
  void ClosedByUser();

 protected:
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace kelvo::ui
