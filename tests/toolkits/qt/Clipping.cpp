#include "tests/toolkits/qt/Clipping.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QTreeWidget>
#include <sstream>

namespace brivane::test {
namespace {

/// Without the "&" before a mnemonic.
QString Plain(QString text) {
  text.replace("&&", QString(QChar(1)));
  text.remove('&');
  return text.replace(QChar(1), '&');
}

/// Across which a label writes its text: a mnemonic is drawn by itself, so that no letter moves under its neighbour.
int WidthDrawn(const QLabel& label) {
  if (label.textFormat() == Qt::PlainText && label.buddy() == nullptr)
    return label.fontMetrics().horizontalAdvance(label.text());
  const qsizetype mark = label.text().indexOf(QRegularExpression("&[^&]"));
  if (label.buddy() == nullptr || mark < 0) return label.fontMetrics().horizontalAdvance(Plain(label.text()));
  int width = 0;
  for (const QString& part : {label.text().left(mark), label.text().mid(mark + 1, 1), label.text().mid(mark + 2)})
    width += label.fontMetrics().horizontalAdvance(Plain(part));
  return width;
}

class Findings {
 public:
  explicit Findings(std::vector<std::string>& lines) : lines_(lines) {}

  void Fits(const QWidget& widget, const QString& text, int room) { Fits(widget, text, widget.fontMetrics(), room); }
  void Fits(const QWidget& widget, const QString& text, const QFontMetrics& metrics, int room) {
    const int width = metrics.horizontalAdvance(text);
    if (!text.isEmpty() && width > room) Add(widget, text, "width", width, room);
  }
  void FitsDrawn(const QLabel& label, int room) {
    const int width = WidthDrawn(label);
    if (width > room) Add(label, label.text(), "width", width, room);
  }
  void FitsInHeight(const QWidget& widget, const QString& text, int height, int room) {
    if (height > room) Add(widget, text, "height", height, room);
  }

 private:
  void Add(const QWidget& widget, const QString& text, const char* side, int asked, int room) {
    std::ostringstream line;
    line << widget.objectName().toStdString() << " \"" << text.toStdString() << "\": " << side << ' ' << asked << " in "
         << room << ", " << widget.font().family().toStdString() << ' ' << widget.font().pixelSize();
    lines_.push_back(line.str());
  }

  std::vector<std::string>& lines_;
};

void LookAt(const QLabel& label, Findings& findings) {
  // One that is shortened with three points, and whole in its tool tip.
  if (label.toolTip() == label.text())
    return findings.FitsInHeight(label, label.text(), label.fontMetrics().height(), label.height());
  const QRect room = label.contentsRect();
  const QString text =
      label.textFormat() == Qt::PlainText && label.buddy() == nullptr ? label.text() : Plain(label.text());
  if (label.wordWrap()) {
    const QRect needed = label.fontMetrics().boundingRect(QRect(0, 0, room.width(), 10000), Qt::TextWordWrap, text);
    return findings.FitsInHeight(label, text, needed.height(), room.height());
  }
  findings.FitsDrawn(label, room.width());
  findings.FitsInHeight(label, text, label.fontMetrics().height(), room.height());
}

void LookAt(const QAbstractButton& button, QStyle::SubElement contents, Findings& findings) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  const QRect room = button.style()->subElementRect(contents, &option, &button);
  findings.Fits(button, Plain(button.text()), room.width());
  findings.FitsInHeight(button, button.text(), button.fontMetrics().height(), button.height());
}

void LookAt(const QComboBox& list, Findings& findings) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  const QRect room = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
  for (int i = 0; i < list.count(); ++i) findings.Fits(list, list.itemText(i), room.width());
  findings.FitsInHeight(list, list.currentText(), list.fontMetrics().height(), list.height());
}

void LookAt(const QLineEdit& box, Findings& findings) {
  constexpr int kMargin = 2;  // of a line edit, on either side
  QStyleOptionFrame option;
  option.initFrom(&box);
  option.lineWidth = box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box) : 0;
  int room = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box).width() - 2 * kMargin;
  for (const auto* icon : box.findChildren<QToolButton*>())
    if (icon->isVisible()) room = qMin(room, icon->x() - 2 * kMargin);
  // What is described in a long text may be longer than its box.
  if (box.alignment().testFlag(Qt::AlignRight) || box.text().size() <= 10) findings.Fits(box, box.text(), room);
  findings.FitsInHeight(box, box.text(), box.fontMetrics().height(), box.height() - 2 * option.lineWidth);
}

void LookAt(const QTreeWidget& table, Findings& findings) {
  for (int column = 0; column < table.columnCount(); ++column) {
    const int room = table.columnWidth(column) - 4;
    findings.Fits(table, table.headerItem()->text(column), table.header()->fontMetrics(), room);
    for (int row = 0; row < table.topLevelItemCount(); ++row) {
      const QTreeWidgetItem& item = *table.topLevelItem(row);
      QFont font = table.font();
      font.setBold(item.font(column).bold());
      findings.Fits(table, item.text(column), QFontMetrics(font), room);
    }
  }
  if (table.topLevelItemCount() == 0) return;
  const QRect last = table.visualItemRect(table.topLevelItem(table.topLevelItemCount() - 1));
  findings.FitsInHeight(table, "the last row", last.bottom() + 1, table.viewport()->height());
}

}  // namespace

std::vector<std::string> CutOffWithin(const QWidget& area) {
  std::vector<std::string> lines;
  Findings findings(lines);
  for (const QWidget* widget : area.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&area) || widget->window() != area.window()) continue;
    if (const auto* label = qobject_cast<const QLabel*>(widget)) LookAt(*label, findings);
    if (const auto* tick = qobject_cast<const QCheckBox*>(widget)) LookAt(*tick, QStyle::SE_CheckBoxContents, findings);
    if (const auto* option = qobject_cast<const QRadioButton*>(widget))
      LookAt(*option, QStyle::SE_RadioButtonContents, findings);
    if (const auto* button = qobject_cast<const QPushButton*>(widget))
      LookAt(*button, QStyle::SE_PushButtonContents, findings);
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) LookAt(*list, findings);
    if (const auto* box = qobject_cast<const QLineEdit*>(widget)) LookAt(*box, findings);
    if (const auto* table = qobject_cast<const QTreeWidget*>(widget)) LookAt(*table, findings);
    if (const auto* group = qobject_cast<const QGroupBox*>(widget))
      findings.Fits(*group, Plain(group->title()), group->width());
  }
  return lines;
}

}  // namespace brivane::test
