#include "ui/widgets/unsaved_mark.h"

#include <QPainter>

namespace kelvo::ui {

UnsavedMark::UnsavedMark(QWidget* parent) : QWidget(parent) {
  setObjectName("mrkUnsaved");
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  Show(false);
}

void UnsavedMark::Show(bool is_unsaved) {
  if (is_unsaved_ == is_unsaved) return;
  is_unsaved_ = is_unsaved;
  const QString word = is_unsaved ? "Unsaved work" : "All work is saved";
  setAccessibleName(word);
  setToolTip(word);
  update();
}

QSize UnsavedMark::sizeHint() const {
  const int side = fontMetrics().height() * 3 / 4;
  return {side, side};
}

void UnsavedMark::paintEvent(QPaintEvent*) {
  if (!is_unsaved_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().highlight());
  const double radius = fontMetrics().height() / 4.0;
  painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

}  // namespace kelvo::ui
