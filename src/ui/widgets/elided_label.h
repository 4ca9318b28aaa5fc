// A label that shows as much of its text as fits, and all of it in its tip.
#pragma once

#include <QLabel>

namespace kelvo::ui {

class ElidedLabel final : public QLabel {
 public:
  using QLabel::QLabel;

  void Show(const QString& text);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QString whole_;
};

}  // namespace kelvo::ui
