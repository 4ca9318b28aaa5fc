// Where windows stand that float over the main window: where they hide nothing of it.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QRect>

namespace kelvo::ui {

class FloatingWindows {
 public:
  // Both outlive it.
  FloatingWindows(const QMainWindow& frame, const QMdiArea& area) : frame_(frame), area_(area) {}

  // What `window` takes on the display, with what the window manager adds.
  static QSize SizeOf(const QWidget& window);
  // A place of `size` over the area of the child windows, beside the main window, or below it, where no child window is
  // hidden; null where there is none.
  QRect FreePlaceOver(QSize size) const;

  // Puts `window` into such a place, or into the lower right corner.
  void Place(QWidget& window) const;
  // The same, unless `place` (of its content, on the display) can be reached.
  void Place(QWidget& window, QPoint place) const;

 private:
  const QMainWindow& frame_;
  const QMdiArea& area_;
};

}  // namespace kelvo::ui
