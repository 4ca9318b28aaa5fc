#include "ui/widgets/value_slider.h"

#include <QEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <cmath>
#include <initializer_list>

#include "ui/widgets/icons.h"

namespace kelvo::ui {
namespace {

constexpr int kPositions = 200, kPage = 10;

}  // namespace

ValueSlider::ValueSlider(const ValueRange& range, QGridLayout& grid, int row, int column, QWidget* parent)
    : QObject(parent),
      range_(range),
      slider_(new QSlider(Qt::Horizontal, parent)),
      field_(new QDoubleSpinBox(parent)),
      reset_(new QToolButton(parent)) {
  const QString name = range.name;
  auto* label = new QLabel(range.label, parent);
  const QString plain = label->text().remove('&').remove(':');
  label->setBuddy(slider_);
  slider_->setObjectName(name + "Slider");
  slider_->setAccessibleName(plain);
  slider_->setToolTip("A double click puts it back");
  slider_->setRange(0, kPositions);
  slider_->setPageStep(kPage);
  slider_->setMinimumWidth(kPositions / 2);
  slider_->installEventFilter(this);
  field_->setObjectName(name);
  field_->setAccessibleName(plain + " as a number");
  field_->setDecimals(range.decimals);
  field_->setRange(range.lowest, range.highest);
  field_->setSingleStep(std::pow(0.1, range.decimals));
  reset_->setObjectName(name + "Reset");
  reset_->setIcon(IconNamed("undo"));
  reset_->setAutoRaise(true);
  reset_->setFocusPolicy(Qt::TabFocus);
  reset_->setAccessibleName(plain + " back to " + field_->textFromValue(range.usual));
  reset_->setToolTip(reset_->accessibleName());
  for (QWidget* widget : std::initializer_list<QWidget*>{label, slider_, field_, reset_}) {
    grid.addWidget(widget, row, column++);
  }
  connect(slider_, &QSlider::valueChanged, this, &ValueSlider::Slide);
  connect(field_, &QDoubleSpinBox::valueChanged, this, &ValueSlider::ValueChanged);
  connect(reset_, &QToolButton::clicked, this, &ValueSlider::PutBack);
  const QSignalBlocker silence(this);
  PutBack();
  range_.usual = Value();  // as many decimals as it can have
  ValueChanged();
}

void ValueSlider::Slide(int position) {
  const QScopedValueRollback sliding(is_sliding_, true);
  SetValue(ValueAt(position));
}

// Where the slider began, it stays: several of its positions may be one value.
void ValueSlider::ValueChanged() {
  if (!is_sliding_) {
    const QSignalBlocker silence(slider_);
    slider_->setValue(PositionOf(Value()));
  }
  reset_->setEnabled(Value() != range_.usual);
  emit Changed();
}

double ValueSlider::ValueAt(int position) const {
  const double share = static_cast<double>(position) / kPositions;
  if (range_.is_logarithmic) return range_.lowest * std::pow(range_.highest / range_.lowest, share);
  return range_.lowest + share * (range_.highest - range_.lowest);
}

int ValueSlider::PositionOf(double value) const {
  const double share = range_.is_logarithmic
                           ? std::log(value / range_.lowest) / std::log(range_.highest / range_.lowest)
                           : (value - range_.lowest) / (range_.highest - range_.lowest);
  return static_cast<int>(std::lround(share * kPositions));
}

bool ValueSlider::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonDblClick) return QObject::eventFilter(watched, event);
  PutBack();
  return true;
}

}  // namespace kelvo::ui
