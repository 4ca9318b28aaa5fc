// The buttons that end a dialog.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>

namespace kelvo::ui {

// One that says `caption` ("cmdStd") and accepts `dialog`, and Cancel.
QDialogButtonBox* MakeDialogButtons(const QString& caption, QDialog* dialog);

}  // namespace kelvo::ui
