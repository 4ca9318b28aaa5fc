#include "ui/windows/background_work.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>
#include <chrono>
#include <exception>
#include <future>
#include <stop_token>
#include <thread>

namespace kelvo::ui {
namespace {

constexpr std::chrono::milliseconds kMoment{150}, kBetweenLooks{50};
constexpr int kBarWidth = 360;

class Stopped : public std::exception {};

class WatchedProgress final : public app::Progress {
 public:
  explicit WatchedProgress(std::stop_token stop) : stop_(std::move(stop)) {}

  void Begin(int last) override { last_ = last; }
  void Advance(int value) override {
    if (stop_.stop_requested()) throw Stopped();
    value_ = value;
  }
  void End() override {}

  void Show(QProgressBar& bar) const {
    bar.setMaximum(last_);
    bar.setValue(value_);
  }

 private:
  std::stop_token stop_;
  std::atomic<int> last_ = 0, value_ = 0;
};

class WorkDialog : public QDialog {
 public:
  WorkDialog(QWidget* window, const QString& what, const WatchedProgress& progress) : QDialog(window) {
    setObjectName("frmWork");
    setWindowTitle(what);
    setMinimumWidth(kBarWidth);
    auto* bar = new QProgressBar(this);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(new QLabel(what, this));
    column->addWidget(bar);
    column->addWidget(buttons);
    auto* look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [bar, &progress] { progress.Show(*bar); });
    look->start(kBetweenLooks);
  }
};

}  // namespace

bool DoWatched(QWidget* window, const QString& what, const std::function<void(app::Progress&)>& work) {
  std::stop_source stop;
  WatchedProgress progress(stop.get_token());
  WorkDialog dialog(window, what, progress);
  std::promise<void> promise;
  std::future<void> done = promise.get_future();
  const std::jthread thread([&] {
    try {
      work(progress);
      promise.set_value();
    } catch (...) {
      promise.set_exception(std::current_exception());
    }
    QMetaObject::invokeMethod(&dialog, &QDialog::accept, Qt::QueuedConnection);
  });
  if (done.wait_for(kMoment) == std::future_status::timeout && dialog.exec() == QDialog::Rejected) stop.request_stop();
  try {
    done.get();
    return !stop.stop_requested();
  } catch (const Stopped&) {
    return false;
  }
}

}  // namespace kelvo::ui
