// Between the core's UTF-8 texts and Qt's.
#pragma once

#include <QDir>
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

// A path as the platform writes it: Qt's own have slashes everywhere.
inline QString NativePath(const QString& path) {
  return QDir::toNativeSeparators(path);
}

}  // namespace kelvo::ui
