#include "ui/windows/export_dialog.h"

#include <QVBoxLayout>

#include "ui/ports/qt_text.h"
#include "ui/widgets/dialog_buttons.h"

namespace kelvo::ui {
namespace {

constexpr int kDialogWidth = 420;
constexpr auto kPngLacks =
    "An image keeps what is seen; not with which of its colors a cell shows it, nor the colors that it does not show.";

QComboBox* AddFormats(QFormLayout* form, QWidget* parent) {
  auto* formats = new QComboBox(parent);
  formats->setObjectName("cboFormat");
  for (const files::ExportFormat& format : files::kExportFormats) {
    formats->addItem(QString("%1 (*.%2)").arg(ToQt(files::FormatOf(format.type).caption)).arg(ToQt(format.ending)));
  }
  formats->addItem("PNG image (*.png)");
  form->addRow("&Format:", formats);
  return formats;
}

}  // namespace

QString ExportChoice::Ending() const {
  return format == nullptr ? "png" : ToQt(format->ending);
}

ExportDialog::ExportDialog(QWidget* parent)
    : QDialog(parent),
      form_(new QFormLayout),
      cboFormat_(AddFormats(form_, this)),
      image_(form_, this),
      lblLacks_(new QLabel(this)) {
  setObjectName("frmExport");
  setWindowTitle("Export");
  lblLacks_->setWordWrap(true);
  lblLacks_->setObjectName("lblLacks");
  auto* column = new QVBoxLayout(this);
  column->addLayout(form_);
  column->addWidget(lblLacks_);
  column->addStretch();
  column->addWidget(MakeDialogButtons("&Export...", this));
  setMinimumWidth(kDialogWidth);
  connect(cboFormat_, &QComboBox::currentIndexChanged, this, &ExportDialog::ShowChoice);
  ShowChoice();
}

ExportChoice ExportDialog::Choice() const {
  const auto index = static_cast<std::size_t>(cboFormat_->currentIndex());
  const bool is_png = index == files::kExportFormats.size();
  return {is_png ? nullptr : &files::kExportFormats.at(index), image_.Size(), image_.Scale()};
}

void ExportDialog::ShowChoice() {
  const files::ExportFormat* format = Choice().format;
  image_.SetEnabled(format == nullptr);
  lblLacks_->setText(format == nullptr ? kPngLacks : ToQt(format->lacks));
}

}  // namespace kelvo::ui
