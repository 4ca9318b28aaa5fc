#include "ui/widgets/elided_label.h"

#include <QResizeEvent>

namespace kelvo::ui {

void ElidedLabel::Show(const QString& text) {
  whole_ = text;
  const QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, contentsRect().width() - 2 * margin());
  setText(shown);
  setToolTip(shown == text ? QString() : text);
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Show(whole_);
}

}  // namespace kelvo::ui
