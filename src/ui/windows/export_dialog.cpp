#include "ui/windows/export_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr int kDialogWidth = 420;
constexpr auto kPngLacks =
    "An image keeps what is seen; not with which of its colors a cell shows it, nor the colors that it does not show.";

}  // namespace

QString ExportChoice::Ending() const {
  return format == nullptr ? "png" : ToQt(format->ending);
}

ExportDialog::ExportDialog(QWidget* parent)
    : QDialog(parent),
      cboFormat_(new QComboBox(this)),
      cboSize_(new QComboBox(this)),
      scale_(new QSpinBox(this)),
      lblLacks_(new QLabel(this)) {
  setObjectName("frmExport");
  setWindowTitle("Export");
  for (const files::ExportFormat& format : files::kExportFormats) {
    cboFormat_->addItem(QString("%1 (*.%2)").arg(ToQt(files::FormatOf(format.type).caption)).arg(ToQt(format.ending)));
  }
  cboFormat_->addItem("PNG image (*.png)");
  cboSize_->addItems({"160 × 200, a pixel for a pixel", "320 × 200, as wide as on a C64", "384 × 272, with border"});
  cboSize_->setCurrentIndex(static_cast<int>(images::ImageSize::kScreen));
  scale_->setRange(1, images::kLargestScale);
  scale_->setSuffix("×");
  lblLacks_->setWordWrap(true);
  cboFormat_->setObjectName("cboFormat");
  cboSize_->setObjectName("cboSize");
  scale_->setObjectName("scale");
  lblLacks_->setObjectName("lblLacks");

  auto* form = new QFormLayout;
  form->addRow("&Format:", cboFormat_);
  form->addRow("&Size:", cboSize_);
  form->addRow("S&cale:", scale_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdStd");
  buttons->button(QDialogButtonBox::Ok)->setText("&Export...");
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(lblLacks_);
  column->addStretch();
  column->addWidget(buttons);
  setMinimumWidth(kDialogWidth);
  connect(cboFormat_, &QComboBox::currentIndexChanged, this, &ExportDialog::ShowChoice);
  ShowChoice();
}

ExportChoice ExportDialog::Choice() const {
  const auto index = static_cast<std::size_t>(cboFormat_->currentIndex());
  const bool is_png = index == files::kExportFormats.size();
  return {is_png ? nullptr : &files::kExportFormats.at(index), static_cast<images::ImageSize>(cboSize_->currentIndex()),
          scale_->value()};
}

void ExportDialog::ShowChoice() {
  const files::ExportFormat* format = Choice().format;
  cboSize_->setEnabled(format == nullptr);
  scale_->setEnabled(format == nullptr);
  lblLacks_->setText(format == nullptr ? kPngLacks : ToQt(format->lacks));
}

}  // namespace kelvo::ui
