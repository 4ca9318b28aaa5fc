#include "ui/windows/step_list.h"

#include <QFont>
#include <QPixmap>

#include "model/full_view.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr int kPicturesKept = 300;

}  // namespace

StepList::StepList(history::History& steps, QObject* parent)
    : QAbstractListModel(parent), steps_(steps), shown_(steps.Count()), pictures_(kPicturesKept) {}

int StepList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_;
}

QVariant StepList::data(const QModelIndex& index, int role) const {
  const history::StepId step = index.row();
  if (role == Qt::DisplayRole) return TextOf(step);
  if (role == Qt::DecorationRole) return PictureOf(step);
  if (role == Qt::FontRole && step == steps_.Current()) {
    QFont bold;
    bold.setBold(true);
    return bold;
  }
  return {};
}

QString StepList::TextOf(history::StepId step) const {
  QString text = QString("%1  %2").arg(step).arg(ToQt(steps_.CaptionOf(step)));
  const history::StepId before = steps_.Before(step);
  if (step > 0 && before != step - 1) text += QString(" (after %1)").arg(before);
  text += '\n' + ToQt(files::StatusName(steps_.FileOf(step)));
  return steps_.IsSaved(step) ? text + ", saved" : text;
}

QIcon StepList::PictureOf(history::StepId step) const {
  if (const QIcon* known = pictures_.object(step)) return *known;
  model::Surface surface(model::kFullViewWidth, model::kFullViewHeight);
  app::NoProgress none;
  model::DrawPicture(steps_.PictureAt(step), surface, none);
  const QImage image(reinterpret_cast<const uchar*>(surface.Row(0)), surface.Width(), surface.Height(),
                     QImage::Format_RGB32);
  const auto small = QPixmap::fromImage(image.scaled(kPictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  QIcon icon(small);
  icon.addPixmap(small, QIcon::Selected);  // in its own colours there too
  pictures_.insert(step, new QIcon(icon));
  return icon;
}

void StepList::Refresh() {
  if (steps_.Count() > shown_) {
    beginInsertRows({}, shown_, steps_.Count() - 1);
    shown_ = steps_.Count();
    endInsertRows();
  }
  emit dataChanged(index(0), index(shown_ - 1), {Qt::DisplayRole, Qt::FontRole});
}

void StepList::StartAfresh() {
  beginResetModel();
  pictures_.clear();
  shown_ = steps_.Count();
  endResetModel();
}

}  // namespace kelvo::ui
