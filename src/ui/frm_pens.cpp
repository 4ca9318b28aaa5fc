#include "ui/frm_pens.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>

namespace kelvo::ui {
namespace {

// A click steps to the next colour, with Shift or the right button to the one before.
model::C64Colour Step(model::C64Colour colour, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  const bool back = button == Qt::RightButton || modifiers.testFlag(Qt::ShiftModifier);
  return model::C64Colour::FromByte(static_cast<std::uint8_t>(colour.Number() + (back ? 15 : 1)));
}

}  // namespace

frmPens::PenRow frmPens::MakeRow(const char* object_name, int row) {
  auto* grid = static_cast<QGridLayout*>(layout());
  const PenRow pen{new SwatchButton(this), new QLabel(this)};
  pen.swatch->setObjectName(object_name);
  pen.swatch->setAccessibleDescription("A click takes the next colour, with Shift the one before.");
  pen.swatch->setStatusTip(pen.swatch->accessibleDescription());
  pen.name->setMinimumWidth(pen.name->fontMetrics().horizontalAdvance("Right: Middle gray "));
  grid->addWidget(pen.swatch, row, 0);
  grid->addWidget(pen.name, row, 1);
  return pen;
}

frmPens::frmPens(QWidget* parent) : QWidget(parent) {
  setObjectName("frmPens");
  setWindowTitle(" Pens");
  auto* grid = new QGridLayout(this);
  left_ = MakeRow("LeftPen", 0);
  right_ = MakeRow("RightPen", 1);
  auto* swap = new QToolButton(this);
  swap->setObjectName("cmdSwap");
  swap->setIcon(QIcon(":/icons/swap.svg"));
  swap->setToolTip("Swap the pens");
  swap->setAccessibleName("Swap the pens");
  grid->addWidget(swap, 0, 2, 2, 1);
  connect(swap, &QToolButton::clicked, this, &frmPens::SwapAsked);
  connect(left_.swatch, &SwatchButton::Chosen, this,
          [this](auto button, auto keys) { emit LeftPenChosen(Step(left_.swatch->Colour(), button, keys)); });
  connect(right_.swatch, &SwatchButton::Chosen, this,
          [this](auto button, auto keys) { emit RightPenChosen(Step(right_.swatch->Colour(), button, keys)); });
}

void frmPens::ShowPens(model::C64Colour left, model::C64Colour right) {
  left_.swatch->Show(left, "Left pen");
  left_.name->setText("Left: " + PlainColourName(left));
  right_.swatch->Show(right, "Right pen");
  right_.name->setText("Right: " + PlainColourName(right));
}

}  // namespace kelvo::ui
