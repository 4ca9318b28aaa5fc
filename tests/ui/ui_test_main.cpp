#include <gtest/gtest.h>

#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>

#include "ui/application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QLoggingCategory::setFilterRules("qt.qpa.*=false");
  // No test may touch the settings of whoever runs it.
  const QTemporaryDir settings;
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  kelvo::ui::KelvoApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
