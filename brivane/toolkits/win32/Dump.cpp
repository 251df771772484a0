#include <commctrl.h>

#include <brivane/controls/Caption.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/win32/Dump.h>
#include <brivane/toolkits/win32/controls/ToggleWindow.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::ControlDump;
using controls::DumpValue;
using host::Kind;

namespace {

bool HasStyle(HWND window, DWORD style) {
  return (static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)) & style) == style;
}

/// The kind that a window is of, by its class and style; a frame without a border and a surface are of one
/// class, and the two kinds that paint themselves are buttons of the class that a screen reader takes them for.
Kind KindOf(HWND window, Kind made) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  const std::wstring className = name;
  const DWORD type = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)) & BS_TYPEMASK;
  if (className == L"Static") return Kind::Label;
  if (className == L"Edit") return Kind::TextBox;
  if (className == L"ComboBox") return Kind::ListBox;
  if (className == WC_LISTVIEWW) return Kind::ListView;
  if (className == kAreaClass) return made == Kind::Surface ? Kind::Surface : Kind::Frame;
  if (type == BS_GROUPBOX) return Kind::Frame;
  if (type == BS_RADIOBUTTON) return Kind::OptionButton;
  if (type == BS_CHECKBOX) return made == Kind::JaNee ? Kind::JaNee : Kind::CheckBox;
  return made == Kind::Hint ? Kind::Hint : Kind::Button;
}

DumpValue ReadShown(const std::string& text, frame::Format format) {
  const controls::TypedContent content = controls::ReadContent(text, format);
  if (!content.refusal.empty()) return text;
  if (const auto* number = std::get_if<double>(&content.value)) return *number;
  if (const auto* date = std::get_if<host::Date>(&content.value)) return *date;
  if (const auto* typed = std::get_if<std::string>(&content.value)) return *typed;
  if (format == frame::Format::Date) return host::kNoDate;
  return format == frame::Format::Text ? DumpValue(std::string()) : DumpValue(0.0);
}

/// In the container of the design, whatever window it really stands in.
host::Place ShownPlace(HWND window, HWND container, const host::Place& asked, const Edge& edge) {
  RECT shown{};
  GetWindowRect(window, &shown);
  MapWindowPoints(nullptr, container, reinterpret_cast<POINT*>(&shown), 2);
  const RECT wanted = edge.Pixels(asked);
  if (EqualRect(&shown, &wanted) != FALSE) return asked;
  return {edge.ToTwips(shown.left), edge.ToTwips(shown.top), edge.ToTwips(WidthOf(shown)),
          edge.ToTwips(HeightOf(shown))};
}

/// The caption that a text shows: what was asked where it is shown so, else the text itself. That of a frame has a
/// blank after it.
std::string CaptionOf(std::string shown, const frame::Row& row, const std::string& asked) {
  if (row.kind == Kind::Frame && shown.ends_with(' ')) shown.pop_back();
  return shown == controls::MarkedCaption(row, asked) ? asked : shown;
}

std::wstring EntryOf(HWND combo, int index) {
  const auto place = static_cast<WPARAM>(index);
  std::wstring text(static_cast<std::size_t>(SendMessageW(combo, CB_GETLBTEXTLEN, place, 0)), L'\0');
  SendMessageW(combo, CB_GETLBTEXT, place, reinterpret_cast<LPARAM>(text.data()));
  return text;
}

ControlDump::ListContent ReadList(HWND combo) {
  ControlDump::ListContent shown;
  const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i)
    shown.entries.push_back({Narrow(EntryOf(combo, i)), static_cast<std::int32_t>(SendMessageW(
                                                            combo, CB_GETITEMDATA, static_cast<WPARAM>(i), 0))});
  shown.index = static_cast<int>(SendMessageW(combo, CB_GETCURSEL, 0, 0));
  return shown;
}

ControlDump::ListViewContent ReadListView(HWND list, const ControlDump::ListViewContent& asked, const Edge& edge) {
  constexpr int kMost = 512;
  wchar_t text[kMost] = {};
  ControlDump::ListViewContent shown;
  const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
  const auto columns = static_cast<std::size_t>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
  for (std::size_t i = 0; i < columns; ++i) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = text;
    column.cchTextMax = kMost;
    SendMessageW(list, LVM_GETCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    const bool same = i < asked.columns.size() && edge.Pixel(asked.columns[i].width.value) == column.cx;
    shown.columns.push_back({Narrow(text), same ? asked.columns[i].width : edge.ToTwips(column.cx)});
  }
  const auto rows = static_cast<std::size_t>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
  for (std::size_t row = 0; row < rows; ++row) {
    LVITEMW item{};
    item.mask = LVIF_PARAM | LVIF_STATE;
    item.stateMask = LVIS_SELECTED;
    item.iItem = static_cast<int>(row);
    SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    if ((item.state & LVIS_SELECTED) != 0) shown.selected = row + 1;
    const bool known = row < asked.items.size();
    controls::ListView::Item read{known ? asked.items[row].key : "", {}};
    for (std::size_t i = 0; i < (known ? asked.items[row].cells.size() : 0); ++i) {
      LVITEMW cell{};
      cell.iSubItem = static_cast<int>(i);
      cell.pszText = text;
      cell.cchTextMax = kMost;
      SendMessageW(list, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&cell));
      read.cells.push_back({Narrow(text), ((item.lParam >> i) & 1) != 0});
    }
    shown.items.push_back(std::move(read));
  }
  return shown;
}

void ReadWindow(const ControlWindow& shown, ControlDump& dump, const Edge& edge) {
  const HWND window = shown.Handle();
  const frame::Row& row = shown.Control().Row();
  dump.kind = KindOf(window, dump.kind);
  dump.visible = HasStyle(window, WS_VISIBLE);
  dump.enabled = !HasStyle(window, WS_DISABLED);
  dump.place = ShownPlace(window, AreaOf(*shown.Control().Container()), dump.place, edge);
  if (dump.caption) dump.caption = CaptionOf(Narrow(HeldTextOf(window)), row, *dump.caption);
  switch (dump.kind) {
    case Kind::TextBox:
      dump.value = ReadShown(Narrow(TextOf(window)), row.format);
      dump.locked = HasStyle(window, ES_READONLY);
      break;
    case Kind::JaNee: dump.value = static_cast<const ToggleWindow&>(shown).Shown(); break;
    case Kind::CheckBox: dump.value = static_cast<int>(SendMessageW(window, BM_GETCHECK, 0, 0)); break;
    case Kind::OptionButton: dump.value = SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED; break;
    case Kind::ListBox: dump.list = ReadList(window); break;
    case Kind::ListView: dump.listView = ReadListView(window, *dump.listView, edge); break;
    default: break;
  }
}

}  // namespace

std::vector<ControlDump> DumpShown(const controls::Surface& surface, const Toolkit& toolkit) {
  std::vector<ControlDump> dumps;
  for (const auto& control : surface.Made()) {
    ControlDump dump = controls::Dump(*control);
    ReadWindow(WindowFor(*control), dump, toolkit.Edge());
    dumps.push_back(std::move(dump));
    if (control->ControlKind() != Kind::Surface) continue;
    std::vector<ControlDump> inner = DumpShown(static_cast<const controls::Surface&>(*control), toolkit);
    dumps.insert(dumps.end(), std::make_move_iterator(inner.begin()), std::make_move_iterator(inner.end()));
  }
  return dumps;
}

}  // namespace brivane::win32
