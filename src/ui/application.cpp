#include "ui/application.h"

#include <QIcon>
#include <exception>

// The icons lie in a static library, so they register only when asked to; the macro must stand in no namespace.
static void RegisterIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace kelvo::ui {

KelvoApplication::KelvoApplication(int& argc, char** argv) : QApplication(argc, argv) {
  RegisterIcons();
  setWindowIcon(QIcon(":/icons/kelvo.svg"));
}

bool KelvoApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    if (on_error) on_error(error);
    return false;
  }
}

}  // namespace kelvo::ui
