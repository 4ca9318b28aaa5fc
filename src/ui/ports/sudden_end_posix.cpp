#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <utility>

#include "ui/ports/sudden_end.h"

namespace kelvo::ui {
namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// What a handler that the system calls can reach: it is handed nothing.
std::array<int, 2> signal_pipe{-1, -1};

// A handler may do next to nothing itself; the event loop does the rest.
void Handle(int number) {
  const char byte = static_cast<char>(number);
  [[maybe_unused]] const auto written = ::write(signal_pipe[1], &byte, 1);
}

class SignalListener final : public QObject {
 public:
  explicit SignalListener(std::function<void()> rescue) : rescue_(std::move(rescue)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signal_pipe.data()) != 0) return;
    auto* notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
      notifier->setEnabled(false);
      End();
    });
    struct sigaction handled {};
    handled.sa_handler = Handle;
    handled.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
      ::sigaction(kSignals[i], nullptr, &former_actions_[i]);
      // A signal that is ignored from the start (by nohup) stays so.
      if (former_actions_[i].sa_handler != SIG_IGN) ::sigaction(kSignals[i], &handled, nullptr);
    }
  }
  ~SignalListener() override {
    if (signal_pipe[0] < 0) return;
    for (std::size_t i = 0; i < kSignals.size(); ++i) ::sigaction(kSignals[i], &former_actions_[i], nullptr);
    for (int& end : signal_pipe) ::close(std::exchange(end, -1));
  }

 private:
  void End() const {
    char number = 0;
    [[maybe_unused]] const auto read = ::read(signal_pipe[0], &number, 1);
    rescue_();
    QCoreApplication::exit(128 + number);
  }

  std::function<void()> rescue_;
  std::array<struct sigaction, kSignals.size()> former_actions_{};
};

}  // namespace

std::unique_ptr<QObject> ListenForEnds(std::function<void()> rescue) {
  return std::make_unique<SignalListener>(std::move(rescue));
}

}  // namespace kelvo::ui
