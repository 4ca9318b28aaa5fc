#include "ui/application.h"

#include <exception>

#include "ui/widgets/icons.h"
#include "ui/widgets/kelvo_style.h"

namespace kelvo::ui {

KelvoApplication::KelvoApplication(int& argc, char** argv) : QApplication(argc, argv) {
  setStyle(new KelvoStyle);
  setWindowIcon(IconNamed("kelvo"));
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
