// The application object, with the outermost boundary for errors.
#pragma once

#include <QApplication>
#include <functional>

namespace kelvo::ui {

// An error that no handler caught ends the event, never the program: it is handed to `on_error`, and the user is told.
class KelvoApplication : public QApplication {
  Q_OBJECT

 public:
  KelvoApplication(int& argc, char** argv);

  std::function<void(const std::exception&)> on_error;

  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace kelvo::ui
