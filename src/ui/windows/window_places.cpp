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
#include "ui/windows/window_layout.h"

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

// The setting of a window's place or size.
class PlaceSetting {
 public:
  explicit PlaceSetting(const QString& key) : key_(FromQt(key)) {}
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

// The frame that a window manager puts around a window whose own is not known yet.
constexpr QMargins kLikelyFrame(6, 30, 6, 6);

}  // namespace

std::optional<KeptPlace> ReadPlace(const app::SettingsStore& settings, const QString& name) {
  const auto numbers = ReadNumbers(settings, name + "Place", 3);
  if (!numbers) return std::nullopt;
  const auto sides = ReadNumbers(settings, name + "Size", 2);
  return KeptPlace{{(*numbers)[0], (*numbers)[1]},
                   (*numbers)[2] == 1,
                   sides ? QSize(std::abs((*sides)[0]), std::abs((*sides)[1])) : QSize()};
}

void KeepPlace(app::SettingsStore& settings, const QString& name, const KeptPlace& place) {
  KeepNumbers(settings, name + "Place", {place.at.x(), place.at.y(), place.is_shown ? 1 : 0});
  if (place.size.isValid()) KeepNumbers(settings, name + "Size", {place.size.width(), place.size.height()});
}

QRect FreeArea(const QRect& place) {
  const auto seen = [&place](const QScreen* screen) {
    const QRect part = screen->availableGeometry() & place;
    return part.width() * part.height();
  };
  const auto screens = QGuiApplication::screens();
  const auto most = std::max_element(screens.begin(), screens.end(),
                                     [&](const QScreen* one, const QScreen* other) { return seen(one) < seen(other); });
  if (most == screens.end()) return {0, 0, 1024, 768};
  const QScreen* screen = seen(*most) > 0 ? *most : screens.first();
  return screen->availableGeometry();
}

void BringIntoReach(QWidget& window) {
  const QRect space = FreeArea(window.geometry()).marginsRemoved(kLikelyFrame);
  const QSize size = window.size().boundedTo(space.size());
  const QRect there = IntoReach({window.geometry().topLeft(), size}, space);
  if (there != window.geometry()) window.setGeometry(there);
}

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
  frame.restoreState(
      QByteArray::fromBase64(QByteArray::fromStdString(settings.Read(PlaceSetting("Toolbar1Place").Get()))));
  const auto numbers = ReadNumbers(settings, frame.objectName() + "Place", 5);
  if (!numbers) return;
  const QRect place((*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]);
  if (place.width() < 3 * kGrip || place.height() < 3 * kGrip) return;
  const QRect space = FreeArea(place).marginsRemoved(kLikelyFrame);
  const QRect bounded(place.topLeft(), place.size().boundedTo(space.size()));
  frame.setGeometry(CanBeTakenOnAScreen(place) && bounded == place ? place : IntoReach(bounded, space));
  if ((*numbers)[4] == 1) frame.setWindowState(Qt::WindowMaximized);
}

void KeepFrame(app::SettingsStore& settings, const QMainWindow& frame) {
  const QRect place = frame.normalGeometry();
  KeepNumbers(settings, frame.objectName() + "Place",
              {place.x(), place.y(), place.width(), place.height(), frame.isMaximized() ? 1 : 0});
  settings.Write(PlaceSetting("Toolbar1Place").Get(), frame.saveState().toBase64().toStdString());
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
