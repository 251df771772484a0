#pragma once

#include "component/idl/Windows.h"

#include <gtest/gtest.h>

#include "tests/component/replay/LateBound.h"

namespace brivane::latebound {

/// COM for as long as the tests of a program run.
class Apartment : public testing::Environment {
 public:
  void SetUp() override { ASSERT_HRESULT_SUCCEEDED(OleInitialize(nullptr)); }
  void TearDown() override { OleUninitialize(); }
};

/// After a session nothing that it made is left, on either side.
inline void ExpectNothingLeft() {
  EXPECT_EQ(LateBound::Live(), 0) << "the component still holds objects of the host";
  CoFreeUnusedLibrariesEx(0, 0);
  EXPECT_EQ(GetModuleHandleW(L"BrivaneVrijeKolom.dll"), nullptr) << "objects of the component live on";
}

}  // namespace brivane::latebound
