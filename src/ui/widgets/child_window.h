// The frame of a child window of the main window.
#pragma once

#include <QMdiSubWindow>

namespace kelvo::ui {

// A window of one size, of any size, or of any size and with a button that asks for all the room there is.
enum class WindowSize { kFixed, kFree, kFills };

// Lives as long as the main window: its close box hides it and says so, and shows again what it hid.
class ChildWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  // Frames `form`, whose title, size and objectName it takes.
  ChildWindow(QWidget* form, WindowSize size);

  bool IsFixed() const { return size_ == WindowSize::kFixed; }

  // What the frame adds to its form.
  QSize Chrome() const;

 signals:
  void ClosedByUser();
  void FillAsked();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  WindowSize size_;
};

}  // namespace kelvo::ui
