// Where windows stood, kept between runs, and brought back into reach where the displays are others now.
#pragma once

#include <QMainWindow>
#include <QPoint>
#include <QRect>
#include <optional>

#include "app/settings_store.h"

namespace kelvo::ui {

// What a window manager adds to a window's width and height, or somewhat more.
inline constexpr QSize kAround(8, 36);

// What was kept of a child window; `size` is empty for one of a fixed size.
struct KeptPlace {
  QPoint at;
  bool is_shown;
  QSize size;
};

std::optional<KeptPlace> ReadPlace(const app::SettingsStore& settings, const QString& name);
void KeepPlace(app::SettingsStore& settings, const QString& name, const KeptPlace& place);

// The main window and its toolbar. Nonsense is not restored; a place of a display that is gone is brought into reach.
void RestoreFrame(const app::SettingsStore& settings, QMainWindow& frame);
void KeepFrame(app::SettingsStore& settings, const QMainWindow& frame);

// What a window can take of the display that shows most of `place`, or of the first one; never empty, not even where
// there is no display.
QRect FreeArea(const QRect& place);

// Moves a window of the display's own into reach, and makes it no larger than its display.
void BringIntoReach(QWidget& window);

// The window's title bar can be taken hold of inside `space`, or on a display.
bool CanBeTaken(const QRect& window, const QRect& space);
bool CanBeTakenOnAScreen(const QRect& window);

// Where the content of the frame window begins on the display, as it was kept. What is stored may be out of reach.
QPoint ReadFrameWindowPlace(const app::SettingsStore& settings);
void KeepFrameWindowPlace(app::SettingsStore& settings, QPoint place);

}  // namespace kelvo::ui
