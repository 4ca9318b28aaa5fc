#include "ui/widgets/elided_label.h"

#include <QFontInfo>
#include <QResizeEvent>

namespace kelvo::ui {
namespace {

constexpr int kMargin = 2;
constexpr double kSmallest = 0.7;  // of the common size

}  // namespace

ElidedLabel::ElidedLabel(const QString& widest, QWidget* parent) : QLabel(parent), widest_(widest) {
  setTextFormat(Qt::PlainText);
  setMargin(kMargin);
}

QFont ElidedLabel::FontFor(const QString& text) const {
  QFont font = parentWidget()->font();
  const int needed = QFontMetrics(font).horizontalAdvance(text) + 1, room = width() - 2 * kMargin;
  if (needed > room) font.setPointSizeF(QFontInfo(font).pointSizeF() * std::max(kSmallest, double(room) / needed));
  return font;
}

void ElidedLabel::Show(const QString& text) {
  whole_ = text;
  if (testAttribute(Qt::WA_PendingResizeEvent)) return setText(text);  // how much room there is will be told
  if (const QFont fitting = FontFor(text); fitting != font()) setFont(fitting);
  const QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, width() - 2 * kMargin);
  setText(shown);
  setToolTip(shown == text ? QString() : text);
}

QSize ElidedLabel::sizeHint() const {
  const QFontMetrics metrics(parentWidget()->font());
  return {metrics.horizontalAdvance(widest_) + 4 * kMargin, metrics.height() + 2 * kMargin};
}

QSize ElidedLabel::minimumSizeHint() const {
  return {1, sizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Show(whole_);
}

}  // namespace kelvo::ui
