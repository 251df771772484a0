#pragma once

#include <gtest/gtest.h>

#include "component/automation/Windows.h"

namespace brivane::latebound {

/// COM for as long as the tests of a program run.
class Apartment : public testing::Environment {
 public:
  void SetUp() override { ASSERT_HRESULT_SUCCEEDED(OleInitialize(nullptr)); }
  void TearDown() override { OleUninitialize(); }
};

}  // namespace brivane::latebound
