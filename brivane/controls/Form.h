#pragma once

#include <memory>
#include <string>
#include <vector>

#include <brivane/controls/RowChanges.h>
#include <brivane/controls/Surface.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Form.h>

namespace brivane::controls {

/// A form: a surface in a window of its own. Its size is that of the window.
class BRIVANE_API Form final : public SurfaceOf<host::Form> {
 public:
  /// For the toolkit, which outlives it.
  Form(std::unique_ptr<frame::Row> row, ToolkitBase& toolkit);

  [[nodiscard]] host::Control& Create(std::size_t row, int index) override;
  [[nodiscard]] host::Control* Element(std::size_t row, int index) override;
  [[nodiscard]] host::Twips ScaleWidth() const override;
  [[nodiscard]] host::Twips ScaleHeight() const override;
  [[nodiscard]] std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override { Assign(caption_, caption, Aspect::Caption); }
  void ShowModal(host::Hoofdvenster* eigenaar) override;
  void Unload() override;

  /// Until the form is unloaded a person can act on it.
  [[nodiscard]] bool IsUnloaded() const { return unloaded_; }
  /// What a person has done to the rows.
  [[nodiscard]] const std::shared_ptr<RowChanges>& Rows() const { return rows_; }

 protected:
  Outcome Act(const Action& action) override;
  [[nodiscard]] bool Present() const override { return !unloaded_; }

 private:
  friend class ToolkitBase;

  void AttachForm(std::unique_ptr<FormPeer> peer);

  std::string caption_;
  std::vector<std::vector<AnyControl*>> elements_;  ///< of each row, by index
  std::shared_ptr<RowChanges> rows_ = std::make_shared<RowChanges>();
  FormPeer* formPeer_ = nullptr;
  bool unloaded_ = false;
};

}  // namespace brivane::controls
