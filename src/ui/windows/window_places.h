// Where windows stand, kept between runs.
#pragma once

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QPoint>
#include <span>

#include "app/settings_store.h"

namespace kelvo::ui {

// A child window with the place and the state it has when windows are arranged.
struct ChildPlace {
  QMdiSubWindow* window;
  QPoint place;
  bool is_shown;
};

// Puts every child window where it belongs by default.
void ArrangeWindows(std::span<const ChildPlace> children);

// Puts the content of a window that floats over `frame` at `place` on the display, or where it is arranged when its
// title bar could not be taken hold of there.
void PlaceFloating(QWidget& window, QPoint place, const QWidget& frame);

// Puts such a window into the lower right corner of `frame`, where it hides neither menus nor tools.
void ArrangeFloating(QWidget& window, const QWidget& frame);

// Where the content of the frame window begins on the display, as it was kept. What is stored may be out of reach.
QPoint ReadFrameWindowPlace(const app::SettingsStore& settings);
void KeepFrameWindowPlace(app::SettingsStore& settings, QPoint place);

// Stores the places of the main window, its toolbar and the child windows.
void KeepPlaces(app::SettingsStore& settings, const QMainWindow& frame, std::span<const ChildPlace> children);

// Puts all where they were. A place that no screen (for a child, the main window) shows any more is left alone.
void RestorePlaces(const app::SettingsStore& settings, QMainWindow& frame, std::span<const ChildPlace> children);

}  // namespace kelvo::ui
