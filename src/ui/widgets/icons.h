// The program's icons, by the names of their drawings in assets/icons.
#pragma once

#include <QIcon>

namespace kelvo::ui {

// The icon `name` in every size that was drawn; empty where there is none of that name.
QIcon IconNamed(const QString& name);

}  // namespace kelvo::ui
