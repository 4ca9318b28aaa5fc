// The steps of the history as a list for a view: small pictures and captions.
#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QIcon>

#include "history/history.h"

namespace kelvo::ui {

// Pictures are made when a view asks for them; those of the last few hundred steps that were seen are kept.
class StepList : public QAbstractListModel {
  Q_OBJECT

 public:
  static constexpr QSize kPictureSize{80, 50};

  // `steps` outlives the list.
  StepList(history::History& steps, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  // There are more steps, or another one is the current one.
  void Refresh();
  // Steps are others than before, or look otherwise.
  void StartAfresh();

 private:
  QString TextOf(history::StepId step) const;
  QIcon PictureOf(history::StepId step) const;

  history::History& steps_;
  int shown_ = 0;  // how many the views know of
  mutable QCache<history::StepId, QIcon> pictures_;
};

}  // namespace kelvo::ui
