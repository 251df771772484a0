#include <commctrl.h>

#include <brivane/toolkits/win32/controls/ListViewWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;

namespace {

constexpr float kHeadingSize = 8.25F / 9;

int CountItems(HWND list) { return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)); }

int CountColumns(HWND list) {
  const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
  return static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
}

LPARAM BoldCells(const controls::ListView::Item& item) {
  LPARAM bits = 0;
  for (std::size_t i = 0; i < item.cells.size(); ++i)
    if (item.cells[i].bold) bits |= LPARAM{1} << i;
  return bits;
}

}  // namespace

ListViewWindow::ListViewWindow(controls::ListView& list, win32::Toolkit& toolkit)
    : ControlWindow(list, toolkit,
                    {.className = WC_LISTVIEWW,
                     .style = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                              LVS_NOSORTHEADER,
                     .extendedStyle = WS_EX_CLIENTEDGE}),
      list_(list),
      name_(std::make_unique<NameLabel>(list, toolkit)) {
  SetWindowPos(Handle(), name_->Handle(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  ShowColumns();
  ShowRows();
}

void ListViewWindow::Refresh(Aspect aspect) {
  if (Handle() == nullptr) return;
  switch (aspect) {
    case Aspect::Columns: return ShowColumns();
    case Aspect::Rows: return ShowRows();
    case Aspect::Selection: return ShowSelection();
    default: ControlWindow::Refresh(aspect);
  }
}

/// The headings stand closer than the class lays them out, so they are a little smaller than the rows.
void ListViewWindow::ShowFont() {
  ControlWindow::ShowFont();
  const frame::Design& design = list_.Owner()->Table();
  const float points = list_.Read(host::Measure::FontSize).value_or(design.fontSize);
  const auto header = reinterpret_cast<HWND>(SendMessageW(Handle(), LVM_GETHEADER, 0, 0));
  SendMessageW(header, WM_SETFONT, reinterpret_cast<WPARAM>(Toolkit().FontOf(design, points * kHeadingSize)), TRUE);
}

void ListViewWindow::Rescale() {
  ControlWindow::Rescale();
  if (Handle() != nullptr) ShowColumns();
}

void ListViewWindow::ShowColumns() {
  const auto& columns = list_.Columns();
  while (CountColumns(Handle()) > static_cast<int>(columns.size()))
    SendMessageW(Handle(), LVM_DELETECOLUMN, columns.size(), 0);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::wstring heading = Wide(columns[i].heading);
    LVCOLUMNW column{};
    column.mask = LVCF_FMT | LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.fmt = LVCFMT_LEFT;
    column.cx = Toolkit().Edge().Pixel(columns[i].width.value);
    column.pszText = heading.data();
    column.iSubItem = static_cast<int>(i);
    const bool present = static_cast<int>(i) < CountColumns(Handle());
    SendMessageW(Handle(), present ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
  ShowRows();
}

void ListViewWindow::ShowRows() {
  const auto& items = list_.Items();
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  while (CountItems(Handle()) > static_cast<int>(items.size()))
    Show([&] { SendMessageW(Handle(), LVM_DELETEITEM, items.size(), 0); });
  for (std::size_t row = 0; row < items.size(); ++row) {
    LVITEMW item{};
    item.iItem = static_cast<int>(row);
    if (item.iItem >= CountItems(Handle())) SendMessageW(Handle(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.mask = LVIF_PARAM;
    item.lParam = BoldCells(items[row]);
    SendMessageW(Handle(), LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    for (std::size_t i = 0; i < items[row].cells.size(); ++i) {
      std::wstring text = Wide(items[row].cells[i].text);
      LVITEMW cell{};
      cell.iSubItem = static_cast<int>(i);
      cell.pszText = text.data();
      SendMessageW(Handle(), LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&cell));
    }
  }
  ShowSelection();
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ListViewWindow::ShowSelection() {
  LVITEMW state{};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  Show([&] {
    SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&state));
    // Where no row is marked the first shows that the list has the focus.
    const std::size_t selected = list_.Selected();
    state.state = selected == 0 ? LVIS_FOCUSED : LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(Handle(), LVM_SETITEMSTATE, selected == 0 ? 0 : selected - 1, reinterpret_cast<LPARAM>(&state));
  });
}

void ListViewWindow::ShowBackColor() {
  const auto color = list_.BackColor();
  const COLORREF back = DrawnColor(color.value_or(host::kWindowBackground));
  const bool own = color && OwnColor(*color);
  SendMessageW(Handle(), LVM_SETBKCOLOR, 0, static_cast<LPARAM>(back));
  SendMessageW(Handle(), LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(back));
  SendMessageW(Handle(), LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(own ? TextOn(back) : GetSysColor(COLOR_WINDOWTEXT)));
  InvalidateRect(Handle(), nullptr, TRUE);
}

std::optional<LRESULT> ListViewWindow::OnNotify(NMHDR& header) {
  if (header.code == LVN_ITEMCHANGING) {
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    const bool person = !Showing() && (change.uChanged & LVIF_STATE) != 0;
    return person ? TRUE : FALSE;
  }
  if (header.code != NM_CUSTOMDRAW) return std::nullopt;
  auto& draw = reinterpret_cast<NMLVCUSTOMDRAW&>(header);
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT: return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT: return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
      const bool bold = ((draw.nmcd.lItemlParam >> draw.iSubItem) & 1) != 0;
      const frame::Design& design = list_.Owner()->Table();
      const float points = list_.Read(host::Measure::FontSize).value_or(design.fontSize);
      SelectObject(draw.nmcd.hdc, Toolkit().FontOf(design, points, bold ? Weight::Bold : Weight::Regular));
      return CDRF_NEWFONT;
    }
    default: return std::nullopt;
  }
}

LRESULT ListViewWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // A click gives the focus and selects nothing; the class would wait for a drag.
  if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
    if (list_.Reachable() && Toolkit().LeaveBox(*this)) SetFocus(Handle());
    return 0;
  }
  return ControlWindow::OnMessage(message, wParam, lParam);
}

}  // namespace brivane::win32
