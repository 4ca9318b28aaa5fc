// What "Export..." asks: the format, for a PNG its size too, and it says what the format cannot carry.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>

#include "files/export_formats.h"
#include "ui/windows/image_size_rows.h"

namespace kelvo::ui {

struct ExportChoice {
  const files::ExportFormat* format;  // null: a PNG, by the other two
  images::ImageSize size;
  int scale;

  QString Ending() const;
};

class ExportDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ExportDialog(QWidget* parent);

  ExportChoice Choice() const;

 private:
  void ShowChoice();

  QFormLayout* form_;
  QComboBox* cboFormat_;
  ImageSizeRows image_;
  QLabel* lblLacks_;
};

}  // namespace kelvo::ui
