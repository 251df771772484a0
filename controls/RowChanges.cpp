#include "controls/RowChanges.h"

#include "controls/DrawnToolkit.h"
#include "controls/Form.h"

namespace brivane::controls {

namespace {

constexpr char kRowsLost[] =
    "De gewijzigde rijen worden niet bewaard als u het venster sluit zonder op OK te drukken. Wilt u het sluiten?";

}  // namespace

std::shared_ptr<RowChanges> RowChanges::Around(const AnyControl& control) {
  if (!control.IsRowElement()) return nullptr;
  auto* const form = dynamic_cast<Form*>(control.Owner());
  return form != nullptr ? form->Rows() : nullptr;
}

void RowChanges::Close(Form& form, DrawnToolkit& toolkit) {
  const bool lost = form.Rows()->Any() || toolkit.Pending().InRowsOf(form);
  if (lost && toolkit.Ask(form.Caption(), kRowsLost, host::MessageStyle::YesNoQuestion) != host::MessageAnswer::Yes)
    return;
  toolkit.Hand(form, controls::Close{});
}

}  // namespace brivane::controls
