#include "ui/windows/window_places.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <vector>

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr app::Setting kFrmAnimLeftPos{"Settings", "frmAnimLeftPos", "0"};
constexpr app::Setting kFrmAnimTopPos{"Settings", "frmAnimTopPos", "0"};

// As much of a window as a hand needs to take hold of it.
constexpr int kGrip = 40;

constexpr int kTitleBar = kGrip / 2;  // about its height

// No display reaches farther.
bool IsOnADisplay(int coordinate) {
  constexpr int kFarthest = 32767;
  return std::abs(std::int64_t{coordinate}) <= kFarthest;
}

// The setting of a window's place, by its objectName.
class PlaceSetting {
 public:
  explicit PlaceSetting(const QString& name) : key_(FromQt(name + "Place")) {}
  app::Setting Get() const { return {"Settings", key_, ""}; }

 private:
  std::string key_;
};

std::optional<std::vector<int>> ReadNumbers(const app::SettingsStore& settings, const QString& name, qsizetype count) {
  const QStringList texts = ToQt(settings.Read(PlaceSetting(name).Get())).split(',');
  if (texts.size() != count) return std::nullopt;
  std::vector<int> numbers;
  for (const QString& text : texts) {
    bool good = false;
    numbers.push_back(text.toInt(&good));
    if (!good || !IsOnADisplay(numbers.back())) return std::nullopt;
  }
  return numbers;
}

void KeepNumbers(app::SettingsStore& settings, const QString& name, std::initializer_list<int> numbers) {
  QStringList texts;
  for (const int number : numbers) texts << QString::number(number);
  settings.Write(PlaceSetting(name).Get(), FromQt(texts.join(',')));
}

// The window's title bar can be taken hold of inside `space`.
bool CanBeTaken(const QRect& window, const QRect& space) {
  const QRect bar(window.left(), window.top(), window.width(), kTitleBar);
  const QRect seen = bar & space;
  return seen.width() >= std::min(kGrip, window.width()) && seen.height() >= kGrip / 4;
}

bool CanBeTakenOnAScreen(const QRect& window) {
  const auto screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(),
                     [&window](const QScreen* screen) { return CanBeTaken(window, screen->availableGeometry()); });
}

void RestoreFrame(const app::SettingsStore& settings, QMainWindow& frame) {
  const auto numbers = ReadNumbers(settings, frame.objectName(), 5);
  if (!numbers) return;
  const QRect place((*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]);
  if (!CanBeTakenOnAScreen(place) || place.width() < 3 * kGrip || place.height() < 3 * kGrip) return;
  // A window of a larger display, or of nonsense, would take more memory than there is.
  const QSize most = QGuiApplication::primaryScreen()->virtualSize();
  frame.setGeometry(QRect(place.topLeft(), place.size().boundedTo(most)));
  if ((*numbers)[4] == 1) frame.setWindowState(Qt::WindowMaximized);
}

}  // namespace

void ArrangeWindows(std::span<const ChildPlace> children) {
  for (const ChildPlace& child : children) {
    child.window->move(child.place);
    child.window->setVisible(child.is_shown);
  }
}

void PlaceFloating(QWidget& window, QPoint place, const QWidget& frame) {
  const QRect content(place, window.sizeHint());
  const bool is_near = IsOnADisplay(place.x()) && IsOnADisplay(place.y());
  if (!is_near || !CanBeTakenOnAScreen(content.translated(0, -kTitleBar))) return ArrangeFloating(window, frame);
  window.setGeometry(content);
}

void ArrangeFloating(QWidget& window, const QWidget& frame) {
  const QSize size = window.sizeHint();
  const QRect space = frame.geometry() & frame.screen()->availableGeometry();
  const QPoint corner = space.bottomRight() - QPoint(size.width(), size.height()) - QPoint(kTitleBar, kTitleBar);
  window.setGeometry(
      QRect(QPoint(std::max(corner.x(), space.left()), std::max(corner.y(), space.top() + kTitleBar)), size));
}

void KeepPlaces(app::SettingsStore& settings, const QMainWindow& frame, std::span<const ChildPlace> children) {
  const QRect place = frame.normalGeometry();
  KeepNumbers(settings, frame.objectName(),
              {place.x(), place.y(), place.width(), place.height(), frame.isMaximized() ? 1 : 0});
  settings.Write(PlaceSetting("Toolbar1").Get(), frame.saveState().toBase64().toStdString());
  for (const ChildPlace& child : children) {
    const QPoint at = child.window->pos();
    KeepNumbers(settings, child.window->objectName(), {at.x(), at.y(), child.window->isHidden() ? 0 : 1});
  }
}

void RestorePlaces(const app::SettingsStore& settings, QMainWindow& frame, std::span<const ChildPlace> children) {
  RestoreFrame(settings, frame);
  frame.restoreState(QByteArray::fromBase64(QByteArray::fromStdString(settings.Read(PlaceSetting("Toolbar1").Get()))));
  for (const ChildPlace& child : children) {
    const auto numbers = ReadNumbers(settings, child.window->objectName(), 3);
    if (!numbers) continue;
    const QRect place(QPoint((*numbers)[0], (*numbers)[1]), child.window->sizeHint());
    if (CanBeTaken(place, QRect(QPoint(), frame.size()))) child.window->move(place.topLeft());
    child.window->setVisible((*numbers)[2] == 1);
  }
}

QPoint ReadFrameWindowPlace(const app::SettingsStore& settings) {
  const auto read = [&](const app::Setting& setting) {
    return app::ReadNumber(settings, setting, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  };
  return {read(kFrmAnimLeftPos), read(kFrmAnimTopPos)};
}

void KeepFrameWindowPlace(app::SettingsStore& settings, QPoint place) {
  settings.Write(kFrmAnimLeftPos, std::to_string(place.x()));
  settings.Write(kFrmAnimTopPos, std::to_string(place.y()));
}

}  // namespace kelvo::ui
