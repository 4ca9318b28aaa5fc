// The settings of the editor, to be read.
#pragma once

#include "app/settings_store.h"

namespace kelvo {

// They are looked for when they are asked for, and not before. Nothing is written.
class EditorsSettings final : public app::SettingsStore {
 public:
  std::string Read(const app::Setting& setting) const override;
  void Write(const app::Setting&, std::string_view) override {}
};

}  // namespace kelvo
