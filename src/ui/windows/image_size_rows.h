// The rows of a dialog that ask how large an image is.
#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>

#include "images/picture_png.h"

namespace kelvo::ui {

class ImageSizeRows {
 public:
  // Adds them to `form`.
  ImageSizeRows(QFormLayout* form, QWidget* parent);
  ImageSizeRows(const ImageSizeRows&) = delete;
  ImageSizeRows& operator=(const ImageSizeRows&) = delete;

  images::ImageSize Size() const { return static_cast<images::ImageSize>(cboSize_->currentIndex()); }
  int Scale() const { return scale_->value(); }
  void SetEnabled(bool on);

 private:
  QComboBox* cboSize_;
  QSpinBox* scale_;
};

}  // namespace kelvo::ui
