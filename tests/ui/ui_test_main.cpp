#include <gtest/gtest.h>

#include <QLoggingCategory>

#include "ui/application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QLoggingCategory::setFilterRules("qt.qpa.*=false");
  kelvo::ui::KelvoApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
