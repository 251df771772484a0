#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/toolkits/web/Desktop.h>
#include <brivane/toolkits/web/Page.h>
#include <brivane/toolkits/web/PageTexts.h>

namespace brivane::web {

class FormDialog;
class ListPeer;
class NodePeer;

/// A key that goes down, as the page names it: "Enter", "j", "PageDown".
struct Key {
  std::string name;
  bool shift = false;
  bool control = false;
  bool alt = false;
  bool keypad = false;

  [[nodiscard]] bool IsPlain() const { return !control && !alt; }
};

/// Shows design tables as elements of a page. What a control does stands in the controls in memory; each has a peer
/// here that shows it by an element, and hands over what a person does to that.
///
///     Toolkit toolkit(7);  // the page knows the embedded control as number 7
///     auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
///
/// Must outlive the surfaces and forms that it made.
class Toolkit final : public controls::DrawnToolkit {
 public:
  explicit Toolkit(int page) : page_(page), desktop_(page_, Life()) {}

  [[nodiscard]] web::Page& Page() { return page_; }
  [[nodiscard]] web::Desktop& Desktop() override { return desktop_; }
  [[nodiscard]] host::MessageAnswer Ask(const std::string& caption, const std::string& text,
                                        host::MessageStyle style) override {
    return desktop_.Ask(caption, text, style);
  }
  [[nodiscard]] const frame::Texts& Texts() const override { return *desktop_.texts; }
  /// Says what is shown from now on in another language.
  void Speak(Spoken language);
  /// As the toolkit in memory measures: the same on every machine.
  [[nodiscard]] host::Twips MeasureText(const frame::Design& design, std::string_view text, bool bold) const override;

  /// A person acts on a control by its element. A box that is being edited or a choice that is under way elsewhere is
  /// handed over first; where that is refused, the action is not done. False where it was not done.
  bool Act(controls::AnyControl& control, const controls::Action& action);
  /// Hands over what is being typed and chosen on a surface; false where something stays.
  bool HandOver(const controls::Surface& surface);
  /// Goes to the control on a surface that has this letter; false where there is none.
  bool GoByLetter(controls::Surface& surface, char letter);

  /// The peer of an element; nothing where it is gone.
  [[nodiscard]] NodePeer* Find(NodeId node) const;
  void Add(NodeId node, NodePeer& peer) { peers_[node] = &peer; }
  void Remove(NodeId node) { peers_.erase(node); }
  /// The dialog of an open form; nothing where it is closed.
  [[nodiscard]] FormDialog* FindForm(NodeId node) const;
  void AddForm(NodeId node, FormDialog& dialog) { forms_[node] = &dialog; }
  void RemoveForm(NodeId node) { forms_.erase(node); }
  /// A form or a message box stands before a person.
  [[nodiscard]] bool HasDialog() const;
  /// The list with a choice under way, or nothing.
  void SetUnderWay(ListPeer* list) { underWay_ = list; }
  [[nodiscard]] ListPeer* UnderWay() const { return underWay_; }

  /// Runs while a form is open, in place of a person, when set; a form that it leaves open is closed after it.
  std::function<void(controls::Form&)> modal;

 protected:
  [[nodiscard]] std::unique_ptr<controls::Peer> MakePeer(controls::AnyControl& control) override;
  [[nodiscard]] std::unique_ptr<controls::FormPeer> MakeFormPeer(controls::Form& form) override;

 private:
  web::Page page_;
  web::Desktop desktop_;
  PageTexts pageTexts_{page_};
  std::map<NodeId, NodePeer*> peers_;
  std::map<NodeId, FormDialog*> forms_;
  ListPeer* underWay_ = nullptr;
};

}  // namespace brivane::web
