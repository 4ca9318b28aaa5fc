#include "ui/widgets/dialog_buttons.h"

#include <QPushButton>

namespace kelvo::ui {

QDialogButtonBox* MakeDialogButtons(const QString& caption, QDialog* dialog) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdStd");
  buttons->button(QDialogButtonBox::Ok)->setText(caption);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  return buttons;
}

}  // namespace kelvo::ui
