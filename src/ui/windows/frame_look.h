// How a frame looks in the frame strip.
#pragma once

#include <QStyledItemDelegate>

namespace kelvo::ui {

// The picture with its number below. The current frame has a line around it and its number on a plate; a dotted line
// before a frame says that numbers are missing there; a file that is no picture shows as an empty box.
class FrameLook : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace kelvo::ui
