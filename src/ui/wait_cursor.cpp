#include "ui/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace kelvo::ui {

void WaitCursor::Show() {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void WaitCursor::Hide() {
  QGuiApplication::restoreOverrideCursor();
}

}  // namespace kelvo::ui
