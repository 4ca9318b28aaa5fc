// All keys on one page.
#pragma once

#include <QString>

namespace kelvo::ui {

// As HTML, from the tables that define the keys: menus, tools, pens, scrolling, painting by keyboard.
QString KeyPage();

}  // namespace kelvo::ui
