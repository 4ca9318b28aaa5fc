// The keys that scroll the zoom window.
#pragma once

#include <Qt>
#include <array>

#include "model/zoom_area.h"

namespace kelvo::ui {

struct ZoomKey {
  int key;  // Qt::Key
  model::ZoomMove move;
  const char* what;
};

inline constexpr std::array<ZoomKey, 8> kZoomKeys{{
    {Qt::Key_Left, model::ZoomMove::kLeft, "Scroll left by a cell, with Ctrl by a screen"},
    {Qt::Key_Right, model::ZoomMove::kRight, "Scroll right by a cell, with Ctrl by a screen"},
    {Qt::Key_Up, model::ZoomMove::kUp, "Scroll up by a cell, with Ctrl by a screen"},
    {Qt::Key_Down, model::ZoomMove::kDown, "Scroll down by a cell, with Ctrl by a screen"},
    {Qt::Key_PageUp, model::ZoomMove::kPageUp, "Scroll up by what the zoom window shows"},
    {Qt::Key_PageDown, model::ZoomMove::kPageDown, "Scroll down by what the zoom window shows"},
    {Qt::Key_Home, model::ZoomMove::kRowStart, "Scroll to the left edge"},
    {Qt::Key_End, model::ZoomMove::kRowEnd, "Scroll to the right edge"},
}};

}  // namespace kelvo::ui
