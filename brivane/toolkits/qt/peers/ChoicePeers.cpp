#include <QCheckBox>
#include <QPushButton>

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/ChoicePeers.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>
#include <brivane/toolkits/qt/widgets/OptionButton.h>

namespace brivane::qt {

using controls::Aspect;

namespace {

JaNeeToggle::Answer AnswerOf(int value) {
  return value == host::kJa ? JaNeeToggle::Answer::Ja : JaNeeToggle::Answer::Nee;
}
int ValueOf(JaNeeToggle::Answer answer) { return answer == JaNeeToggle::Answer::Ja ? host::kJa : host::kNee; }

}  // namespace

TogglePeer::TogglePeer(controls::JaNee& toggle, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(toggle, toolkit, new JaNeeToggle(container)), toggle_(toggle) {
  static_cast<JaNeeToggle*>(Widget())->SetOnPick(
      [this](JaNeeToggle::Answer answer) { Toolkit().Act(toggle_, controls::Toggle{ValueOf(answer)}, *Widget()); });
  Refresh(Aspect::Value);
}

void TogglePeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Value) return WidgetPeer::Refresh(aspect);
  if (Widget() != nullptr) static_cast<JaNeeToggle*>(Widget())->Show(AnswerOf(toggle_.Value()));
}

OptionPeer::OptionPeer(controls::OptionButton& option, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(option, toolkit, new qt::OptionButton(ToQt(option.DesignName()), option.Row().tab, container)),
      option_(option) {
  auto* const button = static_cast<qt::OptionButton*>(Widget());
  Refresh(Aspect::Caption);
  Refresh(Aspect::Value);
  QObject::connect(button, &QRadioButton::toggled, button, [this](bool selected) {
    if (Showing() || !selected) return;
    if (!Toolkit().Act(option_, controls::Select{}, *Widget())) ShowGroup();
  });
}

void OptionPeer::Refresh(Aspect aspect) {
  auto* const button = static_cast<qt::OptionButton*>(Widget());
  if (button == nullptr) return;
  if (aspect == Aspect::Value) {
    Show([&] { button->Show(option_.Value()); });
  } else if (aspect == Aspect::Caption) {
    button->setText(ShownCaption(option_.Row(), option_.Caption()));
  } else {
    WidgetPeer::Refresh(aspect);
  }
}

/// After an action that was not done: the buttons show again what stands.
void OptionPeer::ShowGroup() {
  for (const auto& other : option_.Owner()->Made())
    if (other->DesignName() == option_.DesignName()) other->GetPeer()->Refresh(Aspect::Value);
}

CheckPeer::CheckPeer(controls::CheckBox& check, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(check, toolkit, new QCheckBox(container)), check_(check) {
  auto* const box = static_cast<QCheckBox*>(Widget());
  Refresh(Aspect::Caption);
  Refresh(Aspect::Value);
  QObject::connect(box, &QCheckBox::toggled, box, [this](bool ticked) {
    if (Showing()) return;
    Toolkit().Act(check_, controls::Tick{ticked ? host::kTicked : host::kUnticked}, *Widget());
    Refresh(Aspect::Value);
  });
}

void CheckPeer::Refresh(Aspect aspect) {
  auto* const box = static_cast<QCheckBox*>(Widget());
  if (box == nullptr) return;
  if (aspect == Aspect::Value)
    Show([&] { box->setChecked(check_.Value() == host::kTicked); });
  else if (aspect == Aspect::Caption)
    box->setText(ShownCaption(check_.Row(), check_.Caption()));
  else
    WidgetPeer::Refresh(aspect);
}

ComboPeer::ComboPeer(controls::ListBox& list, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(list, toolkit, new ChoiceBox(container)), list_(list) {
  Refresh(Aspect::Entries);
  Box().SetOnChoose([this](int index) {
    const QPointer<QWidget> alive(Widget());
    Toolkit().Act(list_, controls::Choose{index}, *Widget());
    if (alive) Refresh(Aspect::ListIndex);
  });
}

ChoiceBox& ComboPeer::Box() const { return static_cast<ChoiceBox&>(*Widget()); }

void ComboPeer::Refresh(Aspect aspect) {
  if (Widget() == nullptr) return;
  switch (aspect) {
    case Aspect::Entries: {
      QStringList texts;
      for (const auto& entry : list_.Entries()) texts.append(ToQt(entry.text));
      Box().ShowEntries(texts, list_.ListIndex());
      break;
    }
    case Aspect::EntryAdded: Box().ShowOneMore(ToQt(list_.Entries().back().text), list_.ListIndex()); break;
    case Aspect::ListIndex: Box().ShowIndex(list_.ListIndex()); break;
    default: WidgetPeer::Refresh(aspect);
  }
}

ButtonPeer::ButtonPeer(controls::Button& button, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(button, toolkit, new QPushButton(container)), button_(button) {
  auto* const push = static_cast<QPushButton*>(Widget());
  push->setAutoDefault(false);
  Refresh(Aspect::Caption);
  QObject::connect(push, &QPushButton::clicked, push, [this] { Toolkit().Act(button_, controls::Press{}, *Widget()); });
}

void ButtonPeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Caption) return WidgetPeer::Refresh(aspect);
  if (Widget() != nullptr) static_cast<QPushButton*>(Widget())->setText(ShownCaption(button_.Row(), button_.Caption()));
}

}  // namespace brivane::qt
