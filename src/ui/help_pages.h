// The help menu's pages, each in a window of its own.
#pragma once

#include <QWidget>

namespace kelvo::ui {

// Opens the page over `frame`; one that is open already comes forward.
void ShowKeys(QWidget& frame);
void ShowGuide(QWidget& frame);

}  // namespace kelvo::ui
