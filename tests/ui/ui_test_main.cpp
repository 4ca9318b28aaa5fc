#include <gtest/gtest.h>

#include "ui/application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  kelvo::ui::KelvoApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
