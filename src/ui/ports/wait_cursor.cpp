#include "ui/ports/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace kelvo::ui {

void WaitCursor::Appear() {
  if (depth_ == 0 || is_seen_) return;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  is_seen_ = true;
}

void WaitCursor::Hide() {
  --depth_;
  if (depth_ > 0 || !is_seen_) return;
  QGuiApplication::restoreOverrideCursor();
  is_seen_ = false;
}

}  // namespace kelvo::ui
