#include "ui/windows/frame_list.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>

#include "files/load_picture.h"
#include "model/full_view.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr int kPicturesKept = 300;
constexpr const char* kFrameType = "application/x-kelvo-frame";

QPixmap SmallPicture(const model::PictureImage& picture) {
  model::Surface surface(model::kFullViewWidth, model::kFullViewHeight);
  app::NoProgress none;
  model::DrawPicture(picture, surface, none);
  const QImage image(reinterpret_cast<const uchar*>(surface.Row(0)), surface.Width(), surface.Height(),
                     QImage::Format_RGB32);
  const double scale = qGuiApp->devicePixelRatio();
  auto small = QPixmap::fromImage(
      image.scaled(FrameList::kPictureSize * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  small.setDevicePixelRatio(scale);
  return small;
}

}  // namespace

FrameList::FrameList(const app::SettingsStore& settings, QObject* parent)
    : QAbstractListModel(parent), settings_(settings), pictures_(kPicturesKept) {}

void FrameList::Show(const anim::FrameRow& row, std::optional<int> current) {
  ++look_;
  current_ = current;
  if (row == frames_) {
    if (!numbers_.empty()) emit dataChanged(index(0), index(rowCount() - 1));
    return;
  }
  beginResetModel();
  frames_ = row;
  numbers_ = row.Numbers();
  endResetModel();
}

void FrameList::ForgetPictures() {
  pictures_.clear();
  if (!numbers_.empty()) emit dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
}

int FrameList::RowOf(int number) const {
  const auto at = std::lower_bound(numbers_.begin(), numbers_.end(), number) - numbers_.begin();
  return std::min(static_cast<int>(at), rowCount() - 1);
}

int FrameList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(numbers_.size());
}

QVariant FrameList::data(const QModelIndex& index, int role) const {
  const int number = NumberAt(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return QString::number(number);
    case Qt::DecorationRole:
      return PictureOf(number);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
      return Description(number);
    case kIsCurrent:
      return number == current_;
    case kFollowsGap:
      return FollowsGap(index.row());
    default:
      return {};
  }
}

bool FrameList::FollowsGap(int row) const {
  return row > 0 && NumberAt(row - 1) != NumberAt(row) - 1;
}

QString FrameList::Description(int number) const {
  const std::filesystem::path& path = frames_.Path(number);
  QString text = QString("Frame %1: %2").arg(number).arg(QtFromPath(path.filename()));
  if (number == current_) text += ", the current frame";
  return anim::HasPictureSize(path) ? text : text + ", which is no picture";
}

QPixmap FrameList::PictureOf(int number) const {
  Shown* known = pictures_.object(number);
  if (known != nullptr && known->look == look_) return known->picture;
  const std::filesystem::path& path = frames_.Path(number);
  const QDateTime written = QFileInfo(QtFromPath(path)).lastModified();  // std: whole seconds on Windows
  if (known != nullptr && known->written == written) {
    known->look = look_;
    return known->picture;
  }
  const auto picture = anim::ReadFrame(path, files::ReadingBy(settings_));
  QPixmap small = picture ? SmallPicture(*picture) : QPixmap();
  pictures_.insert(number, new Shown{small, written, look_});
  return small;
}

// A frame is dropped between others.
Qt::ItemFlags FrameList::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::ItemIsDropEnabled;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

QStringList FrameList::mimeTypes() const {
  return {kFrameType};
}

QMimeData* FrameList::mimeData(const QModelIndexList& indexes) const {
  auto* dragged = new QMimeData;
  dragged->setData(kFrameType, QByteArray::number(NumberAt(indexes.first().row())));
  return dragged;
}

// In front of `row`: behind the last one where it is -1.
bool FrameList::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex&) {
  const int from = data->data(kFrameType).toInt();
  if (!frames_.Has(from)) return false;
  const int before = row < 0 ? rowCount() : row;
  emit FrameDropped(from, NumberAt(before > RowOf(from) ? before - 1 : before));
  return true;
}

}  // namespace kelvo::ui
