#include "ui/settings_dialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/qt_text.h"

namespace kelvo::ui {

SettingsDialog::SettingsDialog(app::SettingsStore& settings, const QString& name, const QString& title, QWidget* parent)
    : QDialog(parent), settings_(settings), form_(new QFormLayout) {
  setObjectName(name);
  setWindowTitle(title);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form_);
  column->addStretch();
  auto* ok = new QPushButton("OK", this);
  ok->setObjectName("cmdStd");
  ok->setDefault(true);
  column->addWidget(ok, 0, Qt::AlignRight);
  connect(ok, &QPushButton::clicked, this, [this] { cmdStd_Click(); });
}

QCheckBox* SettingsDialog::AddCheckBox(const app::Setting& setting, const QString& caption) {
  auto* box = new QCheckBox(caption, this);
  box->setObjectName(ToQt(setting.key));
  box->setChecked(app::ReadNumber(settings_, setting, 0, 1) == 1);
  form_->addRow(box);
  fields_.push_back({setting, [box] { return QString(box->isChecked() ? "1" : "0"); }});
  return box;
}

QLineEdit* SettingsDialog::AddText(const app::Setting& setting, const QString& label, const QString& hint) {
  auto* line = new QLineEdit(ToQt(settings_.Read(setting)), this);
  line->setObjectName(ToQt(setting.key));
  line->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
  line->setAccessibleName(QString(label).remove('&'));
  line->setToolTip(hint);
  form_->addRow(label, line);
  if (fields_.empty()) line->setFocus();
  fields_.push_back({setting, [line] { return line->text().trimmed(); }});
  return line;
}

void SettingsDialog::AddBeside(QLineEdit& field, QAbstractButton* button) {
  auto* row = new QHBoxLayout;
  int place = 0;
  QFormLayout::ItemRole role{};
  form_->getWidgetPosition(&field, &place, &role);
  form_->removeWidget(&field);
  row->addWidget(&field);
  row->addWidget(button);
  form_->setLayout(place, role, row);
}

void SettingsDialog::AddHint(const QString& text) {
  auto* hint = new QLabel(text, this);
  hint->setWordWrap(true);
  form_->addRow(hint);
}

void SettingsDialog::cmdStd_Click() {
  StoreAll();
  accept();
}

void SettingsDialog::Store(const app::Setting& setting) {
  for (const Field& field : fields_) {
    if (field.setting.key == setting.key) settings_.Write(field.setting, FromQt(field.value()));
  }
}

void SettingsDialog::StoreAll() {
  for (const Field& field : fields_) settings_.Write(field.setting, FromQt(field.value()));
}

}  // namespace kelvo::ui
