#include <memory>

#include <brivane/designer/Plugin.h>
#include <brivane/toolkits/qt/ToelichtingWidget.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

namespace brivane::designer {
namespace {

/// There is no host on a form that is being drawn: nobody is told anything.
class NoTrace final : public host::ProcedureTrace {
 public:
  void EnterProcedure(std::string_view) override {}
  void LeaveProcedure() override {}
  void ErrorInProcedure(std::string_view) override {}
  void SetApplicationTitle(const std::string&) override {}
  void SetObjectName(const std::string&) override {}
  void SetCaption(const std::string&) override {}
  void SetObjectDescription(const std::string&) override {}
  void SetMessage(const std::string&) override {}
  void SetErrorNumber(const std::string&) override {}
  void SetErrorDescription(const std::string&) override {}
  void SetErrorSource(const std::string&) override {}
};

/// In Designer the widget is drawn as it was designed, without a case; the control behind it is there already, so that
/// the properties show.
template <class Widget> QWidget* Make(QWidget* parent, bool inDesigner) {
  auto widget = std::make_unique<Widget>(parent);
  if (inDesigner)
    widget->SetHostFactories(
        {.MaakProcedureTrace = [](std::string_view) { return std::make_shared<NoTrace>(); },
         .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }});
  return widget.release();
}

}  // namespace

Plugin::Plugin() {
  widgets_.push_back(std::make_unique<DesignedWidget>(Description{
      .name = QStringLiteral("brivane::qt::VrijeKolomWidget"),
      .object = QStringLiteral("vrijeKolom"),
      .header = QStringLiteral("<brivane/toolkits/qt/VrijeKolomWidget.h>"),
      .toolTip = QStringLiteral("The editor of a free column"),
      .whatsThis = QStringLiteral("Edits one free column of a loan file. Give it its factories and bind it to "
                                  "a column in code: SetHostFactories, SetApplication."),
      .subject = Subject::Editor,
      .make = Make<qt::VrijeKolomWidget>}));
  widgets_.push_back(std::make_unique<DesignedWidget>(
      Description{.name = QStringLiteral("brivane::qt::ToelichtingWidget"),
                  .object = QStringLiteral("toelichting"),
                  .header = QStringLiteral("<brivane/toolkits/qt/ToelichtingWidget.h>"),
                  .toolTip = QStringLiteral("The explanation of a free column"),
                  .whatsThis = QStringLiteral("In which scenarios a free column counts, and what it does to burden and "
                                              "tax. The editor has one inside it; this one stands alone."),
                  .subject = Subject::Explanation,
                  .make = Make<qt::ToelichtingWidget>}));
}

QList<QDesignerCustomWidgetInterface*> Plugin::customWidgets() const {
  QList<QDesignerCustomWidgetInterface*> all;
  for (const auto& widget : widgets_) all.append(widget.get());
  return all;
}

}  // namespace brivane::designer
