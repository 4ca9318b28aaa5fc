#include "ui/ports/sudden_end.h"

#include <QObject>
#include <cstdlib>

namespace kelvo::ui {
namespace {

// What a handler that the system calls can reach: it is handed nothing.
std::function<void()> rescue_at_exit;

void AtExit() {
  if (rescue_at_exit) rescue_at_exit();
}

}  // namespace

SuddenEnd::SuddenEnd(std::function<void()> rescue) : listener_(ListenForEnds(rescue)) {
  static const int is_registered = std::atexit(AtExit);  // a lost display ends the program through exit()
  Q_UNUSED(is_registered)
  rescue_at_exit = std::move(rescue);
}

SuddenEnd::~SuddenEnd() {
  rescue_at_exit = nullptr;
}

}  // namespace kelvo::ui
