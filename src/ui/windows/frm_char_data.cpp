#include "ui/windows/frm_char_data.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStringList>

#include "app/number_text.h"
#include "model/cell_view.h"
#include "model/pixel_colour.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr std::array kSlots{model::BitPair::k00, model::BitPair::k01, model::BitPair::k10, model::BitPair::k11};
constexpr int kCharBox = 4;
constexpr int kWidestBytes = 120;

QLabel* FixedPitchLabel(QWidget* parent, const QString& widest) {
  auto* label = new QLabel(widest, parent);
  label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  label->setMinimumWidth(label->sizeHint().width());
  return label;
}

}  // namespace

frmCharData::frmCharData(const model::PictureImage& picture, QWidget* parent)
    : QWidget(parent),
      picture_(picture),
      surface_(model::kCellViewWidth, model::kCellViewHeight),
      picStd_(new SurfaceView(surface_, kCharBox, this)),
      lblBytes_(FixedPitchLabel(this, "00000000 $00")),
      lblCell_(new QLabel(this)) {
  setObjectName("frmCharData");
  setWindowTitle(" Char data");
  picStd_->setObjectName("picStd");
  picStd_->setAccessibleName("Cell picture");
  picStd_->setFocusPolicy(Qt::NoFocus);
  lblBytes_->setObjectName("lblBytes");
  auto* bits = MakeBits();
  auto* rows = MakeSlots();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(4, 3, 4, 3);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(1);
  grid->addWidget(lblCell_, 0, 0, 1, 3);
  grid->addWidget(picStd_, 1, 0, 2, 1, Qt::AlignTop);
  grid->addWidget(lblBytes_, 1, 1, 3, 1, Qt::AlignTop);
  // Letters too large for one row put the colors below the bytes.
  const bool is_wide = lblBytes_->minimumWidth() > kWidestBytes;
  grid->addLayout(rows, is_wide ? 4 : 1, is_wide ? 0 : 2, is_wide ? 1 : 2, is_wide ? 3 : 1, Qt::AlignTop);
  grid->addLayout(bits, 3, is_wide ? 0 : 2, Qt::AlignBottom);
  grid->setColumnStretch(2, 1);
  grid->setRowStretch(2, 1);
  Show(model::LookUpPixel(1, 1));
}

QLayout* frmCharData::MakeBits() {
  auto* bits = new QHBoxLayout;
  bits->setSpacing(6);
  for (std::size_t i = 0; i < lblBits_.size(); ++i) {
    lblBits_[i] = FixedPitchLabel(this, "00");
    lblBits_[i]->setObjectName(QString("lblBits_%1").arg(i + 1));
    bits->addWidget(lblBits_[i]);
  }
  bits->addStretch();
  return bits;
}

QLayout* frmCharData::MakeSlots() {
  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(4);
  rows->setVerticalSpacing(2);
  rows->setColumnStretch(1, 1);
  const QString widest = "%00 " + WidestColourName(fontMetrics());
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    slots_[i] = {new SwatchButton(this), new QLabel(this), new QLabel(this)};
    slots_[i].swatch->setObjectName(QString("slot_%1").arg(ToQt(model::ToText(kSlots[i]))));
    slots_[i].swatch->setFocusPolicy(Qt::NoFocus);
    slots_[i].swatch->setFixedSize(18, 18);
    slots_[i].name->setText(widest);
    slots_[i].name->setMinimumWidth(slots_[i].name->sizeHint().width());
    slots_[i].count->setText("32");
    slots_[i].count->setMinimumWidth(slots_[i].count->sizeHint().width());
    slots_[i].count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int row = static_cast<int>(i);
    rows->addWidget(slots_[i].swatch, row, 0);
    rows->addWidget(slots_[i].name, row, 1);
    rows->addWidget(slots_[i].count, row, 2);
  }
  return rows;
}

void frmCharData::Show(const model::PixelPlace& place) {
  place_ = place;
  if (isHidden()) return;
  lblCell_->setText(QString("Cell %1 (column %2, row %3)").arg(place.cell).arg(place.column).arg(place.row));
  model::DrawCellView(picture_, place.cell, surface_);
  picStd_->Refresh();
  ShowBytes();
  ShowSlots();
  ShowBitPairs();
}

void frmCharData::ShowBytes() {
  QStringList lines;
  for (int line = 1; line <= 8; ++line) {
    const std::uint8_t byte = picture_.Bitmap[static_cast<std::size_t>(place_.base + line)];
    lines << ToQt(app::ByteToBinary(byte) + " $" + app::ToHex(byte));
  }
  lblBytes_->setText(lines.join('\n'));
}

void frmCharData::ShowSlots() {
  const auto counts = model::CountPairs(picture_, place_.cell);
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    const QString slot = "%" + ToQt(model::ToText(kSlots[i]));
    const model::C64Colour colour = model::ColourInCell(picture_, place_.cell, kSlots[i]);
    slots_[i].swatch->Show(colour, slot);
    slots_[i].name->setText(slot + " " + PlainColourName(colour));
    slots_[i].count->setText(QString::number(counts[i]));
    slots_[i].count->setToolTip(QString("%1 of the cell's 32 pixels").arg(counts[i]));
  }
}

void frmCharData::ShowBitPairs() {
  const std::uint8_t byte = picture_.Bitmap[static_cast<std::size_t>(place_.byte)];
  for (int position = 1; position <= 4; ++position) {
    QLabel* label = lblBits_[static_cast<std::size_t>(position - 1)];
    label->setText(ToQt(model::ToText(model::PairAt(byte, position))));
    label->setForegroundRole(position == place_.position ? QPalette::Link : QPalette::WindowText);
  }
}

void frmCharData::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Show(place_);
}

}  // namespace kelvo::ui
