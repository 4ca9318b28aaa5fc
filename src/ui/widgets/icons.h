// The program's icons: those that are drawn in assets/icons, by name, and plain colours.
#pragma once

#include <QIcon>

#include "model/c64_colour.h"

namespace kelvo::ui {

// The icon `name` in every size that was drawn; empty where there is none of that name.
QIcon IconNamed(const QString& name);

// A square of `colour`.
QIcon ColourIcon(model::C64Colour colour);

}  // namespace kelvo::ui
