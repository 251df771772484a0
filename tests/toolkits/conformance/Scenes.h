#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "tests/support/TestHost.h"
#include <brivane/frame/Toolkit.h>
#include <brivane/host/model/Hoofdvenster.h>
#include <brivane/vrijekolom/VrijeKolom.h>

/// The editor and the year-by-year form in the states that every toolkit is held to show alike.
namespace brivane::test {

enum class EditorState {
  Designed,   ///< before the first binding
  Recurring,  ///< a recurring cost of a client without a partner
  Product,    ///< a newspaper as a product, the client having a partner
  Transition  ///< the death transition switched on, with a percentage and an end date
};

enum class FormState { Amounts, PercentagesAndDiscount, Growth, Bridging };

[[nodiscard]] std::string_view NameOf(EditorState state);
[[nodiscard]] std::string_view NameOf(FormState state);

/// An editor in one of its states, with its host.
class EditorScene {
 public:
  EditorScene(frame::Toolkit& toolkit, EditorState state);

  [[nodiscard]] host::Surface& Surface() { return *surface_; }
  [[nodiscard]] VrijeKolom& Editor() { return editor_; }

 private:
  TestHost host_;
  std::unique_ptr<host::Surface> surface_;
  VrijeKolom editor_;
};

/// Shows the form in one of its states, until it is closed.
void ShowForm(frame::Toolkit& toolkit, FormState state, host::Hoofdvenster* eigenaar);

}  // namespace brivane::test
