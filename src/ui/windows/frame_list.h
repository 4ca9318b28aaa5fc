// The frames of an animation as a list for a view: small pictures and numbers.
#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QDateTime>
#include <QPixmap>
#include <optional>
#include <vector>

#include "anim/frame_row.h"

namespace kelvo::ui {

// What a frame is beside its number and picture.
enum FrameRole { kIsCurrent = Qt::UserRole, kFollowsGap };

// A frame's file is read when a view asks for its picture; those of the last few hundred frames that were seen are
// kept, and looked at anew after Show(), when they are seen again. A frame without a picture is one whose file is none.
class FrameList : public QAbstractListModel {
  Q_OBJECT

 public:
  static constexpr QSize kPictureSize{96, 60};

  // The settings outlive the list.
  FrameList(const app::SettingsStore& settings, QObject* parent);

  // The frames as they are now; the current one, where there is one.
  void Show(const anim::FrameRow& row, std::optional<int> current);
  // What the frames look like is not known any more.
  void ForgetPictures();

  const anim::FrameRow& Frames() const { return frames_; }
  int NumberAt(int row) const { return numbers_.at(static_cast<std::size_t>(row)); }
  int RowOf(int number) const;  // that of the next frame where there is none of that number

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 signals:
  void FrameDropped(int from, int to);  // frame numbers: `from` is to take the place of `to`

 private:
  struct Shown {
    QPixmap picture;
    QDateTime written;
    int look;  // at the folder, after which it was right
  };
  bool FollowsGap(int row) const;
  QString Description(int number) const;
  QPixmap PictureOf(int number) const;

  const app::SettingsStore& settings_;
  anim::FrameRow frames_;
  std::vector<int> numbers_;
  std::optional<int> current_;
  int look_ = 0;
  mutable QCache<int, Shown> pictures_;
};

}  // namespace kelvo::ui
