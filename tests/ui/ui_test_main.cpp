#include <gtest/gtest.h>

#include <QLoggingCategory>

#include "ui/application.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>

// The font library keeps something where the search does not look for it; what Kelvo keeps is looked for everywhere.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}
#endif

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QLoggingCategory::setFilterRules("qt.qpa.*=false");
  kelvo::ui::KelvoApplication application(argc, argv);
  const int result = RUN_ALL_TESTS();
#ifdef __SANITIZE_ADDRESS__
  // Looked for now, while the threads that scale images are idle: at exit they are ending, and the search trips over
  // it.
  __lsan_do_leak_check();
#endif
  return result;
}
