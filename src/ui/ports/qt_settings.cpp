#include "ui/ports/qt_settings.h"

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

QString PathOf(const app::Setting& setting) {
  return ToQt(setting.section) + '/' + ToQt(setting.key);
}

}  // namespace

std::string QtSettings::Read(const app::Setting& setting) const {
  return FromQt(store_.value(PathOf(setting), ToQt(setting.default_value)).toString());
}

void QtSettings::Write(const app::Setting& setting, std::string_view value) {
  store_.setValue(PathOf(setting), ToQt(value));
}

}  // namespace kelvo::ui
