#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/application_setup.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  desktop::set_up_application();
  return RUN_ALL_TESTS();
}
