#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/component/control/Container.h"
#include "tests/component/control/Dummy.h"

namespace brivane::component::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// OLE in this thread, as long as this stands.
struct Ole {
  Ole() { ::OleInitialize(nullptr); }
  ~Ole() { ::OleUninitialize(); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
};

/// A dummy in a container. Both are seen to be gone at the end.
class ControlTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dummy = Dummy::Make();
    Insert();
  }
  void TearDown() override {
    container.Remove();
    dummy.Reset();
    EXPECT_EQ(Dummy::Live(), 0);
    EXPECT_EQ(container.Held(), 0);
  }

  void Insert() {
    container.Put(dummy->Outer());
    container.calls.clear();
  }
  void Activate(LONG verb = OLEIVERB_UIACTIVATE) {
    ASSERT_EQ(container.Do(verb), S_OK);
    container.calls.clear();
  }
  [[nodiscard]] HWND Frame() const { return dummy->Control().Window(); }
  [[nodiscard]] SIZEL Extent() const {
    SIZEL size{};
    EXPECT_EQ(container.Object().GetExtent(DVASPECT_CONTENT, &size), S_OK);
    return size;
  }

  Ole ole;
  Container container;
  ComPtr<Dummy> dummy;
};

/// A key that is held down while this stands.
class Held {
 public:
  explicit Held(BYTE key) : key_(key) { Set(0x80); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  ~Held() { Set(0); }

 private:
  void Set(BYTE state) const {
    BYTE keys[256];
    ::GetKeyboardState(keys);
    keys[key_] = state;
    ::SetKeyboardState(keys);
  }
  BYTE key_;
};

}  // namespace brivane::component::test
