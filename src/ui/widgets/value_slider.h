// A number in a form: its name, a slider, a field to type it into, and a button that puts it back.
#pragma once

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QSlider>
#include <QToolButton>

namespace kelvo::ui {

struct ValueRange {
  const char* name;   // objectName of the field; the slider's has "Slider" behind it, the button's "Reset"
  const char* label;  // with its mnemonic
  double lowest, highest, usual;
  int decimals = 0;
  bool is_logarithmic = false;  // the slider; then `lowest` is above 0
};

class ValueSlider : public QObject {
  Q_OBJECT

 public:
  // Takes four columns of a row of `grid`, from `column` on; its widgets belong to `parent`.
  ValueSlider(const ValueRange& range, QGridLayout& grid, int row, int column, QWidget* parent);

  double Value() const { return field_->value(); }
  // A value outside the range becomes the nearest inside.
  void SetValue(double value) { field_->setValue(value); }
  void PutBack() { SetValue(range_.usual); }

 signals:
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;  // a double click on the slider

 private:
  void Slide(int position);
  void ValueChanged();
  double ValueAt(int position) const;
  int PositionOf(double value) const;

  ValueRange range_;
  QSlider* slider_;
  QDoubleSpinBox* field_;
  QToolButton* reset_;
  bool is_sliding_ = false;
};

}  // namespace kelvo::ui
