// Long work that a user watches, and may stop.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "app/long_work.h"

namespace kelvo::ui {

// Does `work` in a thread of its own; what takes more than a moment has a dialog that says `what` it is and shows how
// far. False when the user stopped it (Escape): it then ended at its next Advance(). Throws what it throws.
bool DoWatched(QWidget* window, const QString& what, const std::function<void(app::Progress&)>& work);

}  // namespace kelvo::ui
