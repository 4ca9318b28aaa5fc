#include "ui/windows/frm_fullscreen.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace kelvo::ui {

frmFullscreen::frmFullscreen(const QImage& picture, QWidget* parent) : QWidget(parent, Qt::Window), picture_(picture) {
  setObjectName("frmFullscreen");
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setWindowTitle("Kelvo");
  setAccessibleName("Fullscreen picture");
  setCursor(Qt::BlankCursor);
  setGeometry(parent->screen()->geometry());
}

void frmFullscreen::paintEvent(QPaintEvent*) {
  QPainter(this).drawImage(rect(), picture_);  // nearest neighbour: pixels stay sharp
}

void frmFullscreen::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat()) key_was_pressed_here_ = true;
}

void frmFullscreen::keyReleaseEvent(QKeyEvent* event) {
  // The release of the key that opened the window arrives here too; it does not close it.
  if (key_was_pressed_here_ && !event->isAutoRepeat()) close();
}

void frmFullscreen::mousePressEvent(QMouseEvent*) {
  close();
}

}  // namespace kelvo::ui
