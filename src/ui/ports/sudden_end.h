// Ends that nobody asked the user about: the system ends the program or the session, a display goes away.
#pragma once

#include <functional>
#include <memory>

class QObject;

namespace kelvo::ui {

// At most one exists at a time. While it does, it calls `rescue` before such an end.
class SuddenEnd {
 public:
  explicit SuddenEnd(std::function<void()> rescue);
  ~SuddenEnd();
  SuddenEnd(const SuddenEnd&) = delete;
  SuddenEnd& operator=(const SuddenEnd&) = delete;

 private:
  std::unique_ptr<QObject> listener_;
};

// What calls `rescue` when the system tells of an end, in each platform's own way: by signals, or by a message.
std::unique_ptr<QObject> ListenForEnds(std::function<void()> rescue);

}  // namespace kelvo::ui
