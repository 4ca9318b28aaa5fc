#include "editors_settings.h"

#include <QSettings>

namespace kelvo {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

std::string EditorsSettings::Read(const app::Setting& setting) const {
  const QSettings store("Kelvo", "Kelvo");
  const QString path = Text(setting.section) + '/' + Text(setting.key);
  return store.value(path, Text(setting.default_value)).toString().toStdString();
}

}  // namespace kelvo
