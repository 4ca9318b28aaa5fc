// Lays panels out in as many rows as their widths ask for.
#pragma once

#include <QLayout>
#include <vector>

namespace kelvo::ui {

// The first panel is elastic: it takes what the others leave of a row, and a row of its own where that is less than its
// hint. In further rows the first panel takes what is left. No panel becomes wider than the layout.
class PanelFlow final : public QLayout {
 public:
  explicit PanelFlow(QWidget* parent);
  ~PanelFlow() override;

  void addItem(QLayoutItem* item) override { items_.push_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  using Row = std::vector<QLayoutItem*>;
  std::vector<Row> Rows(int width) const;
  int WidthOf(const Row& row) const;
  int RowHeight() const;

  Row items_;
};

}  // namespace kelvo::ui
