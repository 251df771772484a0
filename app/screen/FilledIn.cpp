#include "app/screen/FilledIn.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <map>
#include <vector>

#include "app/desk/PassingDialog.h"
#include "app/history/HistoryWindow.h"
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::app {
namespace {

using host::Kind;

constexpr std::string_view kYear = "lblJaar";

/// What a cell shows, or what is being typed in it.
QString TextOf(const qt::CellPeer& cell) {
  if (cell.Control().ControlKind() == Kind::CheckBox)
    return cell.Ticked() ? QStringLiteral("ja") : QStringLiteral("nee");
  const qt::EntryBox* editor = cell.Canvas()->IsEdited(cell) ? cell.Canvas()->Editor() : nullptr;
  return editor ? editor->text() : cell.Text();
}

/// "Bedrag jaar" over a column of amounts is "Bedrag".
QString HeadingOf(const controls::AnyControl& control) {
  QString heading = qt::ToQt(control.Row().label);
  if (heading.endsWith(QStringLiteral(" jaar"))) heading.chop(5);
  return heading;
}

/// The rows that a form made of its template: a line of headings, and a line each.
class Rows {
 public:
  explicit Rows(const controls::Form& form) {
    for (const auto& control : form.Made()) {
      if (control->IsRowElement() && control->Index() != frame::kTemplateIndex) Take(*control);
    }
  }

  [[nodiscard]] QString Text() const {
    QStringList lines{Line([](const Column& column) { return column.heading; })};
    for (int row = 1; row <= last_; ++row) {
      lines << Line([row](const Column& column) {
        const auto cell = column.cells.find(row);
        return cell == column.cells.end() ? QString() : cell->second;
      });
    }
    return lines.join(u'\n');
  }

 private:
  struct Column {
    std::string_view name;
    QString heading;
    std::map<int, QString> cells;
  };

  void Take(const controls::AnyControl& control) {
    const auto* cell = dynamic_cast<const qt::CellPeer*>(control.GetPeer());
    const Kind kind = control.ControlKind();
    const bool year = control.DesignName() == kYear;
    if (cell == nullptr || !cell->Visible() || !(year || kind == Kind::TextBox || kind == Kind::CheckBox)) return;
    auto column = std::find_if(columns_.begin(), columns_.end(),
                               [&](const Column& one) { return one.name == control.DesignName(); });
    if (column == columns_.end()) {
      const QString heading = year ? QStringLiteral("Jaar") : HeadingOf(control);
      column = columns_.insert(column, {.name = control.DesignName(), .heading = heading, .cells = {}});
    }
    column->cells[control.Index()] = TextOf(*cell);
    last_ = std::max(last_, control.Index());
  }

  template <class Cell> [[nodiscard]] QString Line(Cell&& cell) const {
    QStringList cells;
    for (const Column& column : columns_) cells << cell(column);
    return cells.join(u'\t');
  }

  std::vector<Column> columns_;
  int last_ = 0;
};

/// The name of a line of a dialog: its own, or that of the label before it.
QString NameOf(const QDialog& dialog, const QLineEdit& line) {
  if (!line.accessibleName().isEmpty()) return line.accessibleName();
  const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
  const auto label = std::find_if(labels.begin(), labels.end(), [&](QLabel* one) { return one->buddy() == &line; });
  return label == labels.end() ? QString() : (*label)->text().remove(u'&');
}

QString Answers(const QDialog& dialog) {
  QStringList lines;
  bool changed = false;
  for (const QLineEdit* line : dialog.findChildren<QLineEdit*>()) {
    if (!line->isVisible() || line->isReadOnly() || line->text().isEmpty()) continue;
    // What is not shown is not kept either.
    if (line->echoMode() != QLineEdit::Normal) continue;
    changed = changed || line->isModified();
    const QString name = NameOf(dialog, *line);
    lines << (name.isEmpty() ? line->text() : name + QStringLiteral(": ") + line->text());
  }
  return changed ? lines.join(u'\n') : QString();
}

}  // namespace

QString FilledIn(const QDialog& dialog) {
  if (const auto* window = dynamic_cast<const qt::FormWindow::Window*>(&dialog)) {
    const bool changed = window->Form().Rows()->Any() || qt::EntryBox::PendingWithin(dialog) != nullptr;
    return changed ? Rows(window->Form()).Text() : QString();
  }
  // Where a file is chosen a name is typed, and in a filter what is looked for: nothing of a case.
  const bool ofACase = !qobject_cast<const QFileDialog*>(&dialog) && !dynamic_cast<const HistoryWindow*>(&dialog) &&
                       !dynamic_cast<const PassingDialog*>(&dialog);
  return ofACase ? Answers(dialog) : QString();
}

}  // namespace brivane::app
