// Ends that nobody asked the user about: a signal from the system, a display that goes away.
#pragma once

#include <QObject>
#include <functional>

namespace kelvo::ui {

// At most one exists at a time. While it does, it calls `rescue` before such an end.
class SuddenEnd : public QObject {
 public:
  explicit SuddenEnd(std::function<void()> rescue);
  ~SuddenEnd() override;

 private:
  void ListenToSignals();

  std::function<void()> rescue_;
};

}  // namespace kelvo::ui
