// The user's settings: short texts under a section and a key, each read with a default.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::app {

// Names one setting and what it is when nothing (or nonsense) is stored.
struct Setting {
  std::string_view section, key, default_value;
};

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string Read(const Setting& setting) const = 0;
  virtual void Write(const Setting& setting, std::string_view value) = 0;
};

// The setting as a number; its default when the text is no number or lies outside lowest..highest.
int ReadNumber(const SettingsStore& settings, const Setting& setting, int lowest, int highest);

// Whether a setting that is 0 or 1 is 1, read as ReadNumber() does.
bool IsOn(const SettingsStore& settings, const Setting& setting);

}  // namespace kelvo::app
