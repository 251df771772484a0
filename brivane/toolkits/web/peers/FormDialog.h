#pragma once

#include <vector>

#include <brivane/controls/Form.h>
#include <brivane/toolkits/web/Toolkit.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

/// Shows a form by a modal `dialog`.
class FormDialog final : public controls::FormPeer {
 public:
  FormDialog(controls::Form& form, web::Toolkit& toolkit);
  ~FormDialog() override;

  void Refresh(controls::Aspect aspect) override;
  void ShowModal(host::Hoofdvenster* eigenaar) override;
  void Unload() override;

  [[nodiscard]] NodeId Node() const { return node_; }
  [[nodiscard]] controls::Form& Form() const { return form_; }
  [[nodiscard]] bool IsOpen() const { return open_; }
  /// A person closes it; what would be lost is asked about.
  void Close();
  /// A key goes down in an element of a row: up, down, and Enter on to the next of its column.
  bool OnRowKey(NodePeer& from, const Key& key);

 private:
  enum class Direction { Back, Forward };

  void TellRows() const;
  [[nodiscard]] std::vector<NodePeer*> Stops(const frame::Row& row) const;
  void Step(NodePeer& from, Direction direction, bool page);
  void GoDown(NodePeer& from);
  void LeaveRows(const frame::Row& row) const;
  [[nodiscard]] web::Page& Page() const { return toolkit_.Page(); }

  controls::Form& form_;
  web::Toolkit& toolkit_;
  NodeId node_;
  controls::FormSubject subject_;
  Waiting closed_;
  bool open_ = false;
};

}  // namespace brivane::web
