#include "ui/ports/key_guard.h"

#include <QApplication>
#include <QKeyEvent>

namespace kelvo::ui {
namespace {

bool IsMenuOrDialogOpen() {
  return QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
}

}  // namespace

KeyGuard::KeyGuard() {
  qApp->installEventFilter(this);
}

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
  const bool is_press = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (watched->isWidgetType() && (is_press || event->type() == QEvent::KeyRelease)) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const QWidget* window = static_cast<QWidget*>(watched)->window();
    const bool is_elsewhere = IsMenuOrDialogOpen();
    if (is_press && is_elsewhere) pressed_.remove(key->key());
    if (is_press && !is_elsewhere) pressed_.insert(key->key(), {key->modifiers(), window});
    if (!is_press && !is_elsewhere && pressed_.value(key->key()).window != window) return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace kelvo::ui
