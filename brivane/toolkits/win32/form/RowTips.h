#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <string>
#include <vector>

namespace brivane::win32 {

class Toolkit;

/// The tool tip of the rows of a form: it comes up by itself where the pointer rests on one of these windows.
class RowTips {
 public:
  struct Row {
    HWND window;
    std::wstring text;
  };

  RowTips(const Toolkit& toolkit, HWND form, const std::vector<Row>& rows);
  RowTips(const RowTips&) = delete;
  RowTips& operator=(const RowTips&) = delete;
  ~RowTips();

  [[nodiscard]] std::wstring TextOf(HWND window) const;

 private:
  HWND form_;
  HWND tip_;
};

}  // namespace brivane::win32
