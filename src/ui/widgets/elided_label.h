// A label of one line that shows its text whole: in smaller letters where it must; and where that is not enough as much
// as fits, with all of it in its tip.
#pragma once

#include <QLabel>

namespace kelvo::ui {

class ElidedLabel final : public QLabel {
 public:
  // `widest` is what it should have room for, in letters of the common size.
  ElidedLabel(const QString& widest, QWidget* parent);

  void Show(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QFont FontFor(const QString& text) const;

  QString widest_, whole_;
};

}  // namespace kelvo::ui
