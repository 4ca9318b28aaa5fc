#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <utility>

#include "ui/ports/sudden_end.h"

namespace kelvo::ui {
namespace {

// Before a session ends the user is asked like at any other end; when it ends all the same, each window is told.
class SessionListener final : public QObject, public QAbstractNativeEventFilter {
 public:
  explicit SessionListener(std::function<void()> rescue) : rescue_(std::move(rescue)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
    const MSG& told = *static_cast<const MSG*>(message);
    if (told.message == WM_ENDSESSION && told.wParam != FALSE) rescue_();
    return false;
  }

 private:
  std::function<void()> rescue_;
};

}  // namespace

std::unique_ptr<QObject> ListenForEnds(std::function<void()> rescue) {
  return std::make_unique<SessionListener>(std::move(rescue));
}

}  // namespace kelvo::ui
