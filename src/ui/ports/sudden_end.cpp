#include "ui/ports/sudden_end.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cstdlib>
#include <utility>

#ifndef Q_OS_WIN
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#endif

namespace kelvo::ui {
namespace {

// What a handler that the system calls can reach: it is handed nothing.
std::function<void()> rescue_at_exit;

void AtExit() {
  if (rescue_at_exit) rescue_at_exit();
}

#ifndef Q_OS_WIN
constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};
std::array<struct sigaction, kSignals.size()> former_actions;
std::array<int, 2> signal_pipe{-1, -1};

// A handler may do next to nothing itself; the event loop does the rest.
void Handle(int number) {
  const char byte = static_cast<char>(number);
  [[maybe_unused]] const auto written = ::write(signal_pipe[1], &byte, 1);
}
#endif

}  // namespace

SuddenEnd::SuddenEnd(std::function<void()> rescue) : rescue_(std::move(rescue)) {
  static const int is_registered = std::atexit(AtExit);  // a lost display ends the program through exit()
  Q_UNUSED(is_registered)
  rescue_at_exit = rescue_;
  ListenToSignals();
}

SuddenEnd::~SuddenEnd() {
  rescue_at_exit = nullptr;
#ifndef Q_OS_WIN
  for (std::size_t i = 0; i < kSignals.size(); ++i) ::sigaction(kSignals[i], &former_actions[i], nullptr);
  for (int& end : signal_pipe) ::close(std::exchange(end, -1));
#endif
}

void SuddenEnd::ListenToSignals() {
#ifndef Q_OS_WIN
  if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signal_pipe.data()) != 0) return;
  auto* notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
    notifier->setEnabled(false);
    char number = 0;
    [[maybe_unused]] const auto read = ::read(signal_pipe[0], &number, 1);
    rescue_();
    QCoreApplication::exit(128 + number);
  });
  struct sigaction handled {};
  handled.sa_handler = Handle;
  handled.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    ::sigaction(kSignals[i], nullptr, &former_actions[i]);
    // A signal that is ignored from the start (by nohup) stays so.
    if (former_actions[i].sa_handler != SIG_IGN) ::sigaction(kSignals[i], &handled, nullptr);
  }
#endif
}

}  // namespace kelvo::ui
