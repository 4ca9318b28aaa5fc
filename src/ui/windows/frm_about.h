// The about box.
#pragma once

#include <QDialog>

namespace kelvo::ui {

class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* parent);
};

}  // namespace kelvo::ui
