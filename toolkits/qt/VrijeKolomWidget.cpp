#include "toolkits/qt/VrijeKolomWidget.h"

#include "toolkits/qt/Text.h"
#include "vrijekolom/Ontwerp.h"

namespace brivane::qt {

VrijeKolomWidget::VrijeKolomWidget(QWidget* parent)
    : ControlWidget(vrijekolom::kOntwerp, parent),
      control_(std::make_unique<VrijeKolom>(Surface(), Toolkit(), LateFactories())) {
  control_->RefreshTopDisplay.Connect([this](const std::string& text) { emit refreshTopDisplay(ToQt(text)); });
  control_->HeightChanged.Connect([this] { emit heightChanged(); });
  LayOut();
}

VrijeKolomWidget::~VrijeKolomWidget() = default;

void VrijeKolomWidget::SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id,
                                      std::int16_t Vrij_Id) {
  control_->SetApplication(Application, Len_Id, Vrij_Id);
}

void VrijeKolomWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  if (!Cancel && !CommitPending()) Cancel = true;
  control_->Validation(Cancel, ControleNr);
}

void VrijeKolomWidget::setBackColor(const QColor& color) {
  control_->SetBackColor(FromQt(color));
}

}  // namespace brivane::qt
