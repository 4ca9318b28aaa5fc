#include "ui/windows/frm_pens.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "ui/widgets/icons.h"

namespace kelvo::ui {
namespace {

constexpr int kWidestNames = 230;

// A click steps to the next colour, with Shift or the right button to the one before.
model::C64Colour Step(model::C64Colour colour, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  const bool back = button == Qt::RightButton || modifiers.testFlag(Qt::ShiftModifier);
  return model::C64Colour::FromByte(static_cast<std::uint8_t>(colour.Number() + (back ? 15 : 1)));
}

}  // namespace

frmPens::PenRow frmPens::MakeRow(const char* object_name) {
  const PenRow pen{new SwatchButton(this), new QLabel(this)};
  pen.swatch->setObjectName(object_name);
  pen.swatch->setAccessibleDescription("A click takes the next color, with Shift the one before.");
  pen.swatch->setStatusTip(pen.swatch->accessibleDescription());
  pen.swatch->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  pen.name->setMinimumWidth(pen.name->fontMetrics().horizontalAdvance("R: " + WidestColourName(fontMetrics())));
  return pen;
}

frmPens::frmPens(QWidget* parent) : QWidget(parent) {
  setObjectName("frmPens");
  setWindowTitle(" Pens");
  left_ = MakeRow("LeftPen");
  right_ = MakeRow("RightPen");
  auto* swap = new QToolButton(this);
  swap->setObjectName("cmdSwap");
  swap->setIcon(IconNamed("swap"));
  swap->setToolTip("Swap the pens (key X)");
  swap->setAccessibleName("Swap the pens");
  LayOut(swap);
  connect(swap, &QToolButton::clicked, this, &frmPens::SwapAsked);
  connect(left_.swatch, &SwatchButton::Chosen, this,
          [this](auto button, auto keys) { emit LeftPenChosen(Step(left_.swatch->Colour(), button, keys)); });
  connect(right_.swatch, &SwatchButton::Chosen, this,
          [this](auto button, auto keys) { emit RightPenChosen(Step(right_.swatch->Colour(), button, keys)); });
}

// Beside one another; letters too large for that put them below one another.
void frmPens::LayOut(QWidget* swap) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(4, 4, 4, 4);
  const bool is_wide = 2 * left_.name->minimumWidth() > kWidestNames;
  const int row = is_wide ? 1 : 0, column = is_wide ? 0 : 2;
  grid->addWidget(left_.swatch, 0, 0);
  grid->addWidget(left_.name, 0, 1);
  grid->addWidget(right_.swatch, row, column);
  grid->addWidget(right_.name, row, column + 1);
  grid->addWidget(swap, 0, 4, row + 1, 1);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(column + 1, 1);
}

void frmPens::ShowPens(model::C64Colour left, model::C64Colour right) {
  left_.swatch->Show(left, "Left pen");
  left_.name->setText("L: " + PlainColourName(left));
  right_.swatch->Show(right, "Right pen");
  right_.name->setText("R: " + PlainColourName(right));
}

}  // namespace kelvo::ui
