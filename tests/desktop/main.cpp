#include <gtest/gtest.h>

#include "desktop/application_setup.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const desktop::application application(argc, argv);
  QApplication::setCursorFlashTime(0);
  desktop::set_up_application();
  return RUN_ALL_TESTS();
}
