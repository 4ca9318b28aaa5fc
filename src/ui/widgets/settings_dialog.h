// A dialog that edits a few settings: fields are filled when it opens and stored by its button.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <functional>
#include <vector>

#include "app/settings_store.h"

namespace kelvo::ui {

class SettingsDialog : public QDialog {
  Q_OBJECT

 public:
  // `name` is the dialog's objectName.
  SettingsDialog(app::SettingsStore& settings, const QString& name, const QString& title, QWidget* parent);

  // A check box stored as 0 or 1.
  QCheckBox* AddCheckBox(const app::Setting& setting, const QString& caption);

  // A text field, stored trimmed of surrounding blanks.
  QLineEdit* AddText(const app::Setting& setting, const QString& label, const QString& hint = {});

  // A number from 0 to `highest`; 0 shows as `zero`.
  QSpinBox* AddNumber(const app::Setting& setting, int highest, const QString& label, const QString& zero,
                      const QString& hint);

  // A button that helps to fill a field, at its right.
  void AddBeside(QLineEdit& field, QAbstractButton* button);

  // A line of explanation below the fields.
  void AddHint(const QString& text);

 protected:
  // The button cmdStd was pressed: stores every field and closes. A dialog that checks its fields first overrides this.
  virtual void cmdStd_Click();

  // Stores the field of one setting, or all of them.
  void Store(const app::Setting& setting);
  void StoreAll();

  app::SettingsStore& settings_;

 private:
  struct Field {
    app::Setting setting;
    std::function<QString()> value;
  };
  void AddField(QWidget& widget, Field field);

  std::vector<Field> fields_;
  QFormLayout* form_;
};

}  // namespace kelvo::ui
