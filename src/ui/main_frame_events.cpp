// What happens to the main window itself: keys, drops, its end.
#include <QAbstractButton>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTimer>

#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/import_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/desks/recovery_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/main_frame.h"
#include "ui/ports/frame_ports.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

void MainFrame::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && builds_->IsBuilding()) return builds_->Stop();
  if (event->key() == Qt::Key_Escape && windows_->IsInSideWindow(focusWidget())) {
    return windows_->GiveFocusToPicture();
  }
  const bool is_arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
  if (is_arrow && qobject_cast<QAbstractButton*>(focusWidget()) != nullptr) return;  // it led from button to button
  // Ctrl+R with Ctrl let go first is still Ctrl+R, not the pen of R.
  const Qt::KeyboardModifiers modifiers = event->modifiers() | ports_->keys.HeldAtPress(event->key());
  if (desk_->HandleKeyUp(event->key(), modifiers) || menu_.HandleKeyUp(event->key(), modifiers)) return;
  QMainWindow::keyReleaseEvent(event);
}

void MainFrame::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) desk_->LoseFocus();
  QMainWindow::changeEvent(event);
}

void MainFrame::dragEnterEvent(QDragEnterEvent* event) {
  if (event->source() != nullptr) return;  // the picture itself
  const auto urls = event->mimeData()->urls();
  const bool is_file = urls.size() == 1 && urls.first().isLocalFile();
  if (is_file || ImportDesk::IsImage(*event->mimeData())) event->acceptProposedAction();
}

void MainFrame::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  if (ImportDesk::IsImage(*event->mimeData())) return imports_->ImportData(*event->mimeData());
  files_.OpenPicture(PathFromQt(event->mimeData()->urls().first().toLocalFile()));
}

void MainFrame::closeEvent(QCloseEvent* event) {
  if (!files_.MayClose()) return event->ignore();
  settings_.Write(kGridColor, std::to_string(zoom_->GridColor().Number()));
  settings_.Write(kMagnification, std::to_string(zoom_->Area().Magnification()));
  windows_->Keep();
  animation_->UnloadFrameWindow();
  StopTools();
  Timer1_->stop();  // a tick would keep the work that was given up
  recovery_->Remove();
  history_->RemoveFile();
  event->accept();
}

}  // namespace kelvo::ui
