#include <gtest/gtest.h>

#include "component/automation/Module.h"

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  brivane::component::module::Attach(GetModuleHandleW(nullptr));
  OleInitialize(nullptr);
  const int failed = RUN_ALL_TESTS();
  const bool left = !brivane::component::module::CanUnload();
  if (left) std::puts("objects of the library are still alive");
  OleUninitialize();
  return failed || left ? 1 : 0;
}
