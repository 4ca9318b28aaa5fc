#include "ui/windows/frame_look.h"

#include <QPainter>

#include "ui/windows/frame_list.h"

namespace kelvo::ui {
namespace {

constexpr int kAround = 7, kBelowPicture = 5, kCurrentLine = 3, kRound = 4;

QRect PlaceOfPicture(const QRect& item) {
  return {{item.x() + (item.width() - FrameList::kPictureSize.width()) / 2, item.y() + kAround},
          FrameList::kPictureSize};
}

void PaintSelection(QPainter& painter, const QStyleOptionViewItem& option) {
  QColor tint = option.palette.color(QPalette::Highlight);
  const bool has_keyboard = option.state.testFlag(QStyle::State_HasFocus);
  tint.setAlpha(has_keyboard ? 110 : 55);
  painter.setPen(has_keyboard ? QPen(option.palette.color(QPalette::Highlight)) : QPen(Qt::NoPen));
  painter.setBrush(tint);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5), kRound, kRound);
}

void PaintPicture(QPainter& painter, const QStyleOptionViewItem& option, const QPixmap& picture) {
  const QRect place = PlaceOfPicture(option.rect);
  if (!picture.isNull()) return painter.drawPixmap(place, picture);
  painter.setPen(QPen(option.palette.color(QPalette::PlaceholderText), 1, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(place.adjusted(0, 0, -1, -1));
  painter.drawText(place, Qt::AlignCenter, "no picture");
}

void PaintCurrent(QPainter& painter, const QStyleOptionViewItem& option, const QRect& number) {
  const QColor colour = option.palette.color(QPalette::Highlight);
  constexpr double kOut = kCurrentLine / 2.0;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, kCurrentLine, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
  painter.drawRect(QRectF(PlaceOfPicture(option.rect)).adjusted(-kOut, -kOut, kOut, kOut));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(number, kRound, kRound);
}

void PaintGap(QPainter& painter, const QStyleOptionViewItem& option) {
  painter.setPen(QPen(option.palette.color(QPalette::PlaceholderText), 2, Qt::DotLine));
  painter.drawLine(option.rect.topLeft() + QPoint(1, kAround), option.rect.bottomLeft() + QPoint(1, -kAround));
}

}  // namespace

QSize FrameLook::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return FrameList::kPictureSize + QSize(2 * kAround, 2 * kAround + kBelowPicture + option.fontMetrics.height());
}

void FrameLook::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const bool is_current = index.data(kIsCurrent).toBool();
  const QString number = index.data().toString();
  QRect plate(0, 0, option.fontMetrics.horizontalAdvance(number) + 4 * kRound, option.fontMetrics.height() + 2);
  plate.moveCenter(option.rect.center());
  plate.moveBottom(option.rect.bottom() - kAround + 2);
  if (option.state.testFlag(QStyle::State_Selected)) PaintSelection(*painter, option);
  PaintPicture(*painter, option, index.data(Qt::DecorationRole).value<QPixmap>());
  if (is_current) PaintCurrent(*painter, option, plate);
  if (index.data(kFollowsGap).toBool()) PaintGap(*painter, option);
  painter->setPen(option.palette.color(is_current ? QPalette::HighlightedText : QPalette::Text));
  painter->drawText(plate, Qt::AlignCenter, number);
  painter->restore();
}

}  // namespace kelvo::ui
