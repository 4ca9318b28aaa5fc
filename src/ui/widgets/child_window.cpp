#include "ui/widgets/child_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QStyle>
#include <QStyleOptionTitleBar>

namespace kelvo::ui {

ChildWindow::ChildWindow(QWidget* form, WindowSize size) : size_(size) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  Qt::WindowFlags flags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint;
  if (size == WindowSize::kFills) flags |= Qt::WindowMaximizeButtonHint;
  setWindowFlags(flags);
  setWidget(form);
  setObjectName(form->objectName() + "_frame");
  if (IsFixed()) layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QSize ChildWindow::Chrome() const {
  return sizeHint() - widget()->sizeHint().expandedTo(widget()->minimumSize());
}

// The style draws the title as the window has it. Qt, told of it, would measure its letters at every change of size.
bool ChildWindow::event(QEvent* event) {
  if (event->type() != QEvent::WindowTitleChange) return QMdiSubWindow::event(event);
  update(0, 0, width(), style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
  return true;
}

void ChildWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  hide();
  emit ClosedByUser();
}

// The room that a window is to fill depends on the others, so the main window gives it: none is ever maximised.
void ChildWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && windowState().testFlag(Qt::WindowMaximized)) {
    overrideWindowState(windowState() & ~Qt::WindowMaximized);
    return emit FillAsked();
  }
  QMdiSubWindow::changeEvent(event);
}

}  // namespace kelvo::ui
