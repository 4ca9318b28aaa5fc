// The changes of an animation as a table: what each takes, and what is wrong with it.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "c64out/animation_release.h"

namespace kelvo::ui {

class ReleaseTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(std::vector<c64out::ReleaseRow> rows);

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<c64out::ReleaseRow> rows_;
};

}  // namespace kelvo::ui
