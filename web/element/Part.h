#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "web/host/Session.h"
#include <brivane/host/Color.h>
#include <brivane/host/controls/Surface.h>
#include <brivane/toolkits/web/Toolkit.h>

namespace brivane {
class VrijeKolom;
class frmScenario;
}  // namespace brivane

namespace brivane::webelement {

/// What an element is bound to, as its host gave it.
struct Subject {
  webhost::Object application;
  webhost::Object lening;   ///< of the explanation control
  std::int16_t Len_Id = 0;  ///< of the editor
  std::int16_t Vrij_Id = 0;
};

/// The control that an element shows: the editor, or the explanation control by itself.
class Part {
 public:
  virtual ~Part() = default;

  virtual void Bind(webhost::Session& session, const Subject& subject) = 0;
  virtual void Unbind() = 0;
  virtual void Validation(bool& cancel, std::int32_t ControleNr) = 0;
  [[nodiscard]] virtual host::Color BackColor() const = 0;
  virtual void SetBackColor(host::Color color) = 0;
  /// The editor itself; nothing where it is the other one.
  [[nodiscard]] virtual brivane::VrijeKolom* Editor() { return nullptr; }
};

/// What an element tells its page.
enum class Told : std::uint8_t { RefreshTopDisplay, HeightChanged, Changed };
using Tell = std::function<void(Told what, const std::string& text)>;

[[nodiscard]] const frame::Design& EditorDesign();
[[nodiscard]] std::unique_ptr<Part> MakeEditor(host::Surface& surface, web::Toolkit& toolkit,
                                               const host::HostFactories& factories, Tell tell);
[[nodiscard]] const frame::Design& ToelichtingDesign();
[[nodiscard]] std::unique_ptr<Part> MakeToelichting(host::Surface& surface, web::Toolkit& toolkit,
                                                    const host::HostFactories& factories, Tell tell);

}  // namespace brivane::webelement
