// Between the core's UTF-8 texts and paths, and Qt's texts.
#pragma once

#include <QDir>
#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

#include "app/path_text.h"

namespace kelvo::ui {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

// Paths have the separators of the platform, where Qt's own texts have slashes everywhere.
inline QString NativePath(const QString& path) {
  return QDir::toNativeSeparators(path);
}

inline QString QtFromPath(const std::filesystem::path& path) {
  return ToQt(app::TextFromPath(path));
}

inline std::filesystem::path PathFromQt(const QString& text) {
  return app::PathFromText(FromQt(NativePath(text)));
}

}  // namespace kelvo::ui
