#include "ui/application.h"

#include <exception>

namespace kelvo::ui {

bool KelvoApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    if (on_error) on_error(error);
    return false;
  }
}

}  // namespace kelvo::ui
