// File > Load recent.
#pragma once

#include <QMenu>

#include "files/picture_files.h"

namespace kelvo::ui {

// Fills `menu` each time that it opens, an entry a file; choosing one opens it. `files` outlives the menu.
void ShowRecentFiles(QMenu* menu, files::PictureFiles& files);

}  // namespace kelvo::ui
