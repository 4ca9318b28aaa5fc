// The settings, kept by Qt where the platform keeps a user's settings.
#pragma once

#include <QSettings>

#include "app/settings_store.h"

namespace kelvo::ui {

// Organisation and application name decide the place; they are set before the first use.
class QtSettings final : public app::SettingsStore {
 public:
  std::string Read(const app::Setting& setting) const override;
  void Write(const app::Setting& setting, std::string_view value) override;

 private:
  QSettings store_;
};

}  // namespace kelvo::ui
