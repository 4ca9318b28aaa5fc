// How often a person can see something new.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

namespace kelvo::ui {

inline constexpr int kDisplayFrameMilliseconds = 16;

// Tells work that is asked far more often when it is time again to show something.
class DisplayFrame {
 public:
  DisplayFrame() { since_.start(); }

  bool IsOver() const { return since_.elapsed() >= kDisplayFrameMilliseconds; }
  void Restart() { since_.restart(); }
  // Lets windows paint; user input stays waiting. The next frame begins behind that.
  void Paint() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    Restart();
  }

 private:
  QElapsedTimer since_;
};

}  // namespace kelvo::ui
