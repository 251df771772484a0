#pragma once

#include <string>

#include <brivane/controls/Control.h>
#include <brivane/controls/Peer.h>
#include <brivane/toolkits/web/Toolkit.h>

namespace brivane::web {

/// Shows a control by an element of the page. What a person does there comes in by the members that begin with "On".
class NodePeer : public controls::Peer {
 public:
  NodePeer(controls::AnyControl& control, web::Toolkit& toolkit);
  ~NodePeer() override;

  void Refresh(controls::Aspect aspect) override;
  void TakeFocus() override;

  [[nodiscard]] NodeId Node() const { return node_; }
  [[nodiscard]] controls::AnyControl& Control() const { return control_; }

  /// A key goes down in it; whether it meant something.
  virtual bool OnKey(const Key& key);
  /// Somebody typed: this stands there now.
  virtual void OnTyped(const std::string& /*text*/) {}
  virtual void OnPasted(const std::string& /*text*/) {}
  /// The focus has gone elsewhere.
  virtual void OnLeft() {}
  /// Whether that changes anything.
  [[nodiscard]] virtual bool MindsBeingLeft() const { return false; }
  /// The day that stands in it, as typed; none where none does.
  [[nodiscard]] virtual host::Date Day() const { return host::kNoDate; }
  /// A press, or another value: of an option its being chosen, of a list an index.
  virtual void OnPicked(int /*value*/) {}

  /// What is being typed in it or chosen is handed over; false where it stays, or where nothing of it is left.
  [[nodiscard]] virtual bool HandOver() { return true; }

 protected:
  [[nodiscard]] web::Toolkit& Toolkit() const { return toolkit_; }
  [[nodiscard]] web::Page& Page() const { return toolkit_.Page(); }
  void ShowText(controls::Aspect aspect, const std::string& text) const { Page().Show(node_, aspect, 0, text); }
  void ShowNumber(int number) const { Page().Show(node_, Shows::Number, number); }

 private:
  void GiveUpOutOfReach() const;

  controls::AnyControl& control_;
  web::Toolkit& toolkit_;
  NodeId node_;
};

}  // namespace brivane::web
