#include "ui/windows/release_table.h"

#include <QGuiApplication>
#include <QPalette>
#include <array>

namespace kelvo::ui {
namespace {

using c64out::ReleaseRow;

struct ReportColumn {
  const char* caption;
  QVariant (*value)(const ReleaseRow& row);
};

constexpr std::array<ReportColumn, 6> kColumns{{
    {"Frame", [](const ReleaseRow& row) { return QVariant(row.frame); }},
    {"Cells changed", [](const ReleaseRow& row) { return QVariant(row.cells); }},
    {"Bytes", [](const ReleaseRow& row) { return QVariant(row.bytes); }},
    {"Fields needed", [](const ReleaseRow& row) { return QVariant(row.fields); }},
    {"Shown", [](const ReleaseRow& row) { return QVariant(row.torn_fields > 0 ? "torn" : "whole"); }},
    {"Fits", [](const ReleaseRow& row) { return QVariant(!row.fits     ? "no"
                                                         : row.is_slow ? "too slow"
                                                                       : "yes"); }},
}};

}  // namespace

void ReleaseTable::Show(std::vector<ReleaseRow> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int ReleaseTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ReleaseTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kColumns.size());
}

QVariant ReleaseTable::data(const QModelIndex& index, int role) const {
  const ReleaseRow& row = rows_.at(static_cast<std::size_t>(index.row()));
  const bool is_marked = !row.fits || row.is_slow;
  const QPalette palette = QGuiApplication::palette();
  switch (role) {
    case Qt::DisplayRole:
      return kColumns.at(static_cast<std::size_t>(index.column())).value(row);
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignCenter);
    case Qt::BackgroundRole:
      return is_marked ? palette.brush(QPalette::ToolTipBase) : QVariant();
    case Qt::ForegroundRole:
      return is_marked ? palette.brush(QPalette::ToolTipText) : QVariant();
    default:
      return {};
  }
}

QVariant ReleaseTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return kColumns.at(static_cast<std::size_t>(section)).caption;
}

}  // namespace kelvo::ui
