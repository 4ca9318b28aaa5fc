#include "ui/widgets/child_window.h"

#include <QCloseEvent>
#include <QLayout>

namespace kelvo::ui {

ChildWindow::ChildWindow(QWidget* form) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  setWidget(form);
  setObjectName(form->objectName() + "_frame");
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void ChildWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  hide();
  emit ClosedByUser();
}

}  // namespace kelvo::ui
