// Between the core's UTF-8 texts and Qt's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kelvo::ui {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

}  // namespace kelvo::ui
