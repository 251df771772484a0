#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

#include <brivane/controls/Choices.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/qt/Dump.h>
#include <brivane/toolkits/qt/Edge.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/JaNeeToggle.h>

namespace brivane::qt {
namespace {

using controls::ControlDump;
using controls::DumpValue;
using host::Kind;

DumpValue ReadShown(const QString& text, frame::Format format) {
  const controls::TypedContent content = controls::ReadContent(FromQt(text), format);
  if (!content.refusal.empty()) return FromQt(text);
  if (const auto* number = std::get_if<double>(&content.value)) return *number;
  if (const auto* date = std::get_if<host::Date>(&content.value)) return *date;
  if (const auto* typed = std::get_if<std::string>(&content.value)) return *typed;
  if (format == frame::Format::Date) return host::kNoDate;
  return format == frame::Format::Text ? DumpValue(std::string()) : DumpValue(0.0);
}

host::Place ShownPlace(const QRect& shown, const host::Place& asked, const Edge& edge) {
  if (edge.Pixels(asked) == shown) return asked;
  return {edge.ToTwips(shown.left()), edge.ToTwips(shown.top()), edge.ToTwips(shown.width()),
          edge.ToTwips(shown.height())};
}

/// The caption that a text shows: what was asked where it is shown so, else the text itself.
std::string CaptionOf(const QString& shown, const frame::Row& row, const std::string& asked) {
  return shown == ShownCaption(row, asked) || shown == PlainCaption(asked) ? asked : FromQt(shown);
}

void ReadList(const QComboBox& combo, ControlDump& dump) {
  ControlDump::ListContent shown;
  for (int i = 0; i < combo.count(); ++i) {
    const auto place = static_cast<std::size_t>(i);
    const std::int32_t data = place < dump.list->entries.size() ? dump.list->entries[place].itemData : 0;
    shown.entries.push_back({FromQt(combo.itemText(i)), data});
  }
  shown.index = combo.currentIndex();
  dump.list = shown;
}

void ReadListView(const QTreeWidget& tree, const Edge& edge, ControlDump& dump) {
  ControlDump::ListViewContent shown;
  const ControlDump::ListViewContent& asked = *dump.listView;
  for (int i = 0; i < tree.columnCount(); ++i) {
    const auto place = static_cast<std::size_t>(i);
    const int width = tree.columnWidth(i);
    const bool same = place < asked.columns.size() && edge.Pixels(asked.columns[place].width, {}).width() == width;
    shown.columns.push_back(
        {FromQt(tree.headerItem()->text(i)), same ? asked.columns[place].width : edge.ToTwips(width)});
  }
  for (int row = 0; row < tree.topLevelItemCount(); ++row) {
    const auto place = static_cast<std::size_t>(row);
    const std::size_t cells = place < asked.items.size() ? asked.items[place].cells.size() : 0;
    controls::ListView::Item item{place < asked.items.size() ? asked.items[place].key : "", {}};
    const QTreeWidgetItem& line = *tree.topLevelItem(row);
    for (int i = 0; i < static_cast<int>(cells); ++i) item.cells.push_back({FromQt(line.text(i)), line.font(i).bold()});
    shown.items.push_back(item);
    if (tree.selectionModel()->isRowSelected(row, {})) shown.selected = place + 1;
  }
  dump.listView = shown;
}

void ReadWidget(const controls::AnyControl& control, const QWidget& widget, const Edge& edge, ControlDump& dump) {
  dump.visible = !widget.isHidden();
  dump.enabled = widget.isEnabledTo(widget.parentWidget());
  dump.place = ShownPlace(widget.geometry(), dump.place, edge);
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    dump.value = ReadShown(line->text(), control.Row().format);
    dump.locked = line->isReadOnly();
  } else if (const auto* toggle = dynamic_cast<const JaNeeToggle*>(&widget)) {
    dump.value = toggle->Shown() == JaNeeToggle::Answer::Ja ? host::kJa : host::kNee;
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    ReadList(*combo, dump);
  } else if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget)) {
    ReadListView(*tree, edge, dump);
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget); button != nullptr && dump.caption) {
    dump.caption = CaptionOf(button->text(), control.Row(), *dump.caption);
    if (control.ControlKind() == Kind::CheckBox) dump.value = button->isChecked() ? host::kTicked : host::kUnticked;
    if (control.ControlKind() == Kind::OptionButton) dump.value = button->isChecked();
  } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    dump.caption = CaptionOf(label->text(), control.Row(), *dump.caption);
  } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
    dump.caption = CaptionOf(group->title(), control.Row(), *dump.caption);
  }
}

void ReadCell(const CellPeer& cell, const Edge& edge, ControlDump& dump) {
  dump.visible = cell.Visible();
  dump.place = ShownPlace(cell.Place(), dump.place, edge);
  const RowCanvas* const canvas = cell.Canvas();
  const bool edited = canvas != nullptr && canvas->IsEdited(cell);
  switch (cell.Control().ControlKind()) {
    case Kind::TextBox:
      dump.value = ReadShown(edited ? canvas->Editor()->text() : cell.Text(), cell.Control().Row().format);
      break;
    case Kind::CheckBox: dump.value = cell.Ticked() ? host::kTicked : host::kUnticked; break;
    case Kind::Label: dump.caption = FromQt(cell.Text()); break;
    default: break;
  }
}

}  // namespace

std::vector<ControlDump> DumpShown(const controls::Surface& surface, const Toolkit& toolkit) {
  std::vector<ControlDump> dumps;
  for (const auto& control : surface.Made()) {
    ControlDump dump = controls::Dump(*control);
    if (const auto* cell = dynamic_cast<const CellPeer*>(control->GetPeer()))
      ReadCell(*cell, toolkit.Edge(), dump);
    else
      ReadWidget(*control, *dynamic_cast<AreaHolder&>(*control->GetPeer()).Area(), toolkit.Edge(), dump);
    dumps.push_back(std::move(dump));
    if (control->ControlKind() != Kind::Surface) continue;
    std::vector<ControlDump> inner = DumpShown(static_cast<const controls::Surface&>(*control), toolkit);
    dumps.insert(dumps.end(), std::make_move_iterator(inner.begin()), std::make_move_iterator(inner.end()));
  }
  return dumps;
}

}  // namespace brivane::qt
