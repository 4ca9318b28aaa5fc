#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>

#include "ui/application.h"

namespace {

// A display that has room for the main window's first size, which Qt's own offscreen one has not.
void UseScreen(const QString& file) {
  QFile screen(file);
  if (!screen.open(QIODevice::WriteOnly)) return;
  screen.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96,
                                "logicalBaseDpi": 96, "dpr": 1}]})");
  const QString relative = QDir::current().relativeFilePath(file);  // a drive's colon would end it
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(relative));
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // No test may touch the settings of whoever runs it.
  const QTemporaryDir settings("settings-XXXXXX");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qgetenv("QT_QPA_PLATFORM") == "offscreen") {
    UseScreen(settings.filePath("screen.json"));
  }
  QLoggingCategory::setFilterRules("qt.qpa.*=false");
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  kelvo::ui::KelvoApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
