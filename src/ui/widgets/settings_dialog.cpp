#include "ui/widgets/settings_dialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "ui/ports/qt_text.h"

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
  box->setChecked(app::IsOn(settings_, setting));
  form_->addRow(box);
  AddField(*box, {setting, [box] { return QString(box->isChecked() ? "1" : "0"); }});
  return box;
}

QLineEdit* SettingsDialog::AddText(const app::Setting& setting, const QString& label, const QString& hint) {
  auto* line = new QLineEdit(ToQt(settings_.Read(setting)), this);
  line->setObjectName(ToQt(setting.key));
  line->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
  line->setAccessibleName(QString(label).remove('&'));
  line->setToolTip(hint);
  form_->addRow(label, line);
  AddField(*line, {setting, [line] { return line->text().trimmed(); }});
  return line;
}

QSpinBox* SettingsDialog::AddNumber(const app::Setting& setting, int highest, const QString& label, const QString& zero,
                                    const QString& hint) {
  auto* number = new QSpinBox(this);
  number->setObjectName(ToQt(setting.key));
  number->setAccessibleName(QString(label).remove('&'));
  number->setToolTip(hint);
  number->setRange(0, highest);
  number->setSpecialValueText(zero);
  number->setValue(app::ReadNumber(settings_, setting, 0, highest));
  form_->addRow(label, number);
  AddField(*number, {setting, [number] { return QString::number(number->value()); }});
  return number;
}

// The first one has the focus when the dialog opens.
void SettingsDialog::AddField(QWidget& widget, Field field) {
  if (fields_.empty()) widget.setFocus();
  fields_.push_back(std::move(field));
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
