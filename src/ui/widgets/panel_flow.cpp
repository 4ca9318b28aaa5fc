#include "ui/widgets/panel_flow.h"

#include <algorithm>

namespace kelvo::ui {

PanelFlow::PanelFlow(QWidget* parent) : QLayout(parent) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(4);
}

PanelFlow::~PanelFlow() {
  for (const QLayoutItem* item : items_) delete item;
}

QLayoutItem* PanelFlow::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* PanelFlow::takeAt(int index) {
  QLayoutItem* item = itemAt(index);
  if (item != nullptr) items_.erase(items_.begin() + index);
  return item;
}

int PanelFlow::WidthOf(const Row& row) const {
  int width = row.empty() ? 0 : -spacing();
  for (const QLayoutItem* item : row) width += item->sizeHint().width() + spacing();
  return width;
}

std::vector<PanelFlow::Row> PanelFlow::Rows(int width) const {
  Row all;
  std::copy_if(items_.begin(), items_.end(), std::back_inserter(all), [](auto* item) { return !item->isEmpty(); });
  if (all.empty() || WidthOf(all) <= width) return {all};
  std::vector<Row> rows{{all.front()}, {}};
  for (QLayoutItem* item : Row(all.begin() + 1, all.end())) {
    Row& row = rows.back();
    row.push_back(item);
    if (row.size() == 1 || WidthOf(row) <= width) continue;
    row.pop_back();
    rows.push_back({item});
  }
  return rows;
}

int PanelFlow::RowHeight() const {
  int height = 0;
  for (const QLayoutItem* item : items_) height = std::max(height, item->sizeHint().height());
  return height;
}

int PanelFlow::heightForWidth(int width) const {
  const int rows = static_cast<int>(Rows(width).size());
  return rows * (RowHeight() + 1) - 1;
}

QSize PanelFlow::sizeHint() const {
  return {WidthOf(items_), RowHeight()};
}

QSize PanelFlow::minimumSize() const {
  return {0, RowHeight()};
}

void PanelFlow::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  int y = rect.top();
  for (const Row& row : Rows(rect.width())) {
    const int left_over = rect.width() - WidthOf(row);
    int x = rect.left();
    for (QLayoutItem* item : row) {
      const int width = item->sizeHint().width() + (item == row.front() ? left_over : 0);
      item->setGeometry({x, y, std::min(width, rect.width()), RowHeight()});
      x += width + spacing();
    }
    y += RowHeight() + 1;
  }
}

}  // namespace kelvo::ui
