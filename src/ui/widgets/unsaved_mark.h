// A dot that says that there is unsaved work.
#pragma once

#include <QWidget>

namespace kelvo::ui {

// Drawn, so that no font has to know the sign. Its room stays while there is none.
class UnsavedMark final : public QWidget {
 public:
  explicit UnsavedMark(QWidget* parent);

  void Show(bool is_unsaved);
  bool IsShown() const { return is_unsaved_; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool is_unsaved_ = true;
};

}  // namespace kelvo::ui
