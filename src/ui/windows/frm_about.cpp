#include "ui/windows/frm_about.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/version.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/icons.h"

namespace kelvo::ui {

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle("About Kelvo");
  auto* icon = new QLabel(this);
  icon->setPixmap(IconNamed("kelvo").pixmap(64, 64));
  icon->setAlignment(Qt::AlignTop);
  auto* text = new QLabel(
      "<h2>Kelvo " + ToQt(app::kVersionWord) +
          "</h2>"
          "<p>An editor for Commodore 64 multicolor pictures:<br>160 × 200 pixels in 40 × 25 cells, each with the "
          "picture's<br>background color and three colors of its own.</p>"
          "<p>By the Kelvo developers. Free software under the MIT licence.</p>",
      this);
  text->setTextFormat(Qt::RichText);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

  auto* row = new QHBoxLayout;
  row->addWidget(icon);
  row->addWidget(text);
  auto* column = new QVBoxLayout(this);
  column->addLayout(row);
  column->addWidget(buttons);
}

}  // namespace kelvo::ui
