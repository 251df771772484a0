#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "web/element/Part.h"
#include <brivane/controls/Binding.h>
#include <brivane/controls/Surface.h>

namespace brivane::webelement {

/// The two elements.
enum class Kind : std::uint8_t { VrijeKolom, Toelichting };

/// A control on a page with all that it runs on, as one thing that the page may take away at any moment: also while it
/// asks something, has its form open, or calls the host. What was going on is abandoned then, and nothing of the host
/// is touched any more.
///
/// All but the making and the going is done in a turn (web::RunTurn).
class Element {
 public:
  /// `page` is the number that the page knows it by.
  Element(int page, Kind kind);
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;
  ~Element();

  /// Makes the control, once: it asks for the tracer already.
  void Make();
  /// As the other toolkits bind: what is being typed is handed over first, or put back where the element is not bound.
  /// Refused while a form or a message box is open. Without an application all of the host is let go of.
  controls::BindingResult Bind(const Subject& subject);
  /// Lets go of the host. What is being typed is handed over; what does not pass is dropped. Who calls this has
  /// abandoned what was going on.
  void Unbind();
  /// The host's check, after what is being typed was handed over; whether to stay. Of the editor also the check of the
  /// explanation control inside it.
  enum class Checked : std::uint8_t { All, Toelichting };
  [[nodiscard]] bool Validation(Checked what, bool cancel, std::int32_t ControleNr);
  [[nodiscard]] bool CommitPending();
  /// Something is being typed or chosen on its surface, or was refused.
  [[nodiscard]] bool IsPending() const;
  void SetBackColor(host::Color color);
  void SetBeeindigenZichtbaar(bool zichtbaar);
  /// Lays the control out anew; a measure of 0 stays.
  void Size(host::Twips width, host::Twips height);

  [[nodiscard]] controls::BindingState State() const { return body_->binding->State(); }
  [[nodiscard]] web::Toolkit& Toolkit() { return body_->toolkit; }
  [[nodiscard]] controls::Surface& Surface() { return controls::Surface::Of(*body_->surface); }
  /// Nothing before it was made.
  [[nodiscard]] webelement::Part* Part() { return body_->part.get(); }

  /// It takes input and is checked although it stands for nothing, as its tests want it.
  bool actsBehindTheVeil = false;

  /// The element that a page knows by a number; nothing where it is gone.
  [[nodiscard]] static Element* Find(int page);

 private:
  struct Body {
    Body(int page_) : page(page_), toolkit(page_) {}

    int page;
    web::Toolkit toolkit;
    std::shared_ptr<webhost::Session> session;
    std::unique_ptr<host::Surface> surface;
    std::optional<controls::Binding> binding;
    std::unique_ptr<webelement::Part> part;
  };

  static void LetGo(Body& body);
  void PutBackPending();

  int page_;
  Kind kind_;
  std::shared_ptr<Body> body_;
};

}  // namespace brivane::webelement
