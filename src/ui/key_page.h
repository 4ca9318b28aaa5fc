// All keys on one page.
#pragma once

#include <QString>
#include <QWidget>

namespace kelvo::ui {

// As HTML, from the tables that define the keys: menus, tools, pens, scrolling, painting by keyboard. The menus' keys
// are those that hold in `frame` now.
QString KeyPage(const QWidget& frame);

}  // namespace kelvo::ui
