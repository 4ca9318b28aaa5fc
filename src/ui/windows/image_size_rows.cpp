#include "ui/windows/image_size_rows.h"

namespace kelvo::ui {

ImageSizeRows::ImageSizeRows(QFormLayout* form, QWidget* parent)
    : cboSize_(new QComboBox(parent)), scale_(new QSpinBox(parent)) {
  cboSize_->setObjectName("cboSize");
  cboSize_->addItems({"160 × 200, a pixel for a pixel", "320 × 200, as wide as on a C64", "384 × 272, with border"});
  cboSize_->setCurrentIndex(static_cast<int>(images::ImageSize::kScreen));
  scale_->setObjectName("scale");
  scale_->setRange(1, images::kLargestScale);
  scale_->setSuffix("×");
  form->addRow("&Size:", cboSize_);
  form->addRow("S&cale:", scale_);
}

void ImageSizeRows::SetEnabled(bool on) {
  cboSize_->setEnabled(on);
  scale_->setEnabled(on);
}

}  // namespace kelvo::ui
