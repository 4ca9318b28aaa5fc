#include "ui/windows/frm_player.h"

#include <QImage>
#include <QKeyEvent>
#include <QPainter>

#include "model/full_view.h"

namespace kelvo::ui {
namespace {

constexpr QSize kPictureBox(model::kFullViewWidth, model::kFullViewHeight);

}  // namespace

frmPlayer::frmPlayer(QWidget* parent)
    : QWidget(parent, Qt::Window), surface_(kPictureBox.width(), kPictureBox.height()) {
  setObjectName("frmPlayer");
  setWindowTitle("Play");
  setAccessibleName("Frames that play");
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(kPictureBox);
  resize(2 * kPictureBox);
}

void frmPlayer::ShowPicture(const model::PictureImage& picture) {
  app::NoProgress none;
  model::DrawPicture(picture, surface_, none);
  update();
}

void frmPlayer::paintEvent(QPaintEvent*) {
  const QImage image(reinterpret_cast<const uchar*>(surface_.Row(0)), surface_.Width(), surface_.Height(),
                     QImage::Format_RGB32);
  QRect place({}, kPictureBox.scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  painter.drawImage(place, image);  // nearest neighbour: pixels stay sharp
}

void frmPlayer::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
}

}  // namespace kelvo::ui
