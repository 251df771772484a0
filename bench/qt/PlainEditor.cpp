#include "bench/qt/PlainEditor.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include <brivane/toolkits/qt/widgets/HelpIcon.h>
#include <brivane/toolkits/qt/widgets/JaNeeToggle.h>

namespace bench {
namespace {

using brivane::qt::HelpIcon;
using brivane::qt::JaNeeToggle;

QTreeWidget* CopyTree(const QTreeWidget& original, QWidget* parent) {
  auto* const tree = new QTreeWidget(parent);
  tree->setRootIsDecorated(false);
  tree->setColumnCount(original.columnCount());
  for (int i = 0; i < original.columnCount(); ++i) tree->setColumnWidth(i, original.columnWidth(i));
  for (int row = 0; row < original.topLevelItemCount(); ++row) {
    auto* const line = new QTreeWidgetItem(tree);
    for (int i = 0; i < original.columnCount(); ++i) line->setText(i, original.topLevelItem(row)->text(i));
  }
  return tree;
}

/// A widget that shows the same and has children of its own only where they are controls as well.
QWidget* CopyOne(const QWidget& original, QWidget* parent) {
  if (const auto* label = qobject_cast<const QLabel*>(&original)) return new QLabel(label->text(), parent);
  if (const auto* line = qobject_cast<const QLineEdit*>(&original)) {
    auto* const copy = new QLineEdit(parent);
    copy->setAlignment(line->alignment());
    return copy;
  }
  if (dynamic_cast<const JaNeeToggle*>(&original) != nullptr) return new JaNeeToggle(parent);
  if (const auto* icon = dynamic_cast<const HelpIcon*>(&original)) return new HelpIcon(icon->Help(), parent);
  if (const auto* option = qobject_cast<const QRadioButton*>(&original))
    return new QRadioButton(option->text(), parent);
  if (const auto* check = qobject_cast<const QCheckBox*>(&original)) return new QCheckBox(check->text(), parent);
  if (const auto* push = qobject_cast<const QPushButton*>(&original)) return new QPushButton(push->text(), parent);
  if (qobject_cast<const QComboBox*>(&original) != nullptr) return new QComboBox(parent);
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&original)) return CopyTree(*tree, parent);
  if (const auto* group = qobject_cast<const QGroupBox*>(&original)) return new QGroupBox(group->title(), parent);
  return new QWidget(parent);
}

bool IsContainer(const QWidget& widget) {
  return widget.metaObject() == &QWidget::staticMetaObject || qobject_cast<const QGroupBox*>(&widget) != nullptr;
}

std::function<void()> Capture(const QWidget& original, QWidget& copy) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&original))
    return [&target = static_cast<QLineEdit&>(copy), text = line->text()] { target.setText(text); };
  if (const auto* toggle = dynamic_cast<const JaNeeToggle*>(&original))
    return [&target = static_cast<JaNeeToggle&>(copy), answer = toggle->Shown()] { target.Show(answer); };
  if (const auto* combo = qobject_cast<const QComboBox*>(&original)) {
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i) texts.append(combo->itemText(i));
    // The list of terms is fixed; the others are filled for each column.
    if (combo->objectName() == "cboTermijn")
      return [&target = static_cast<QComboBox&>(copy), texts, index = combo->currentIndex()] {
        if (target.count() == 0) target.addItems(texts);
        target.setCurrentIndex(index);
      };
    return [&target = static_cast<QComboBox&>(copy), texts, index = combo->currentIndex()] {
      target.clear();
      for (const QString& text : texts) target.addItem(text);
      target.setCurrentIndex(index);
    };
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&original); button != nullptr && button->isCheckable())
    return [&target = static_cast<QAbstractButton&>(copy), on = button->isChecked(), text = button->text()] {
      target.setText(text);
      target.setChecked(on);
    };
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&original)) {
    int marked = -1;
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
      if (tree->selectionModel()->isRowSelected(row, {})) marked = row;
    return [&target = static_cast<QTreeWidget&>(copy), marked] {
      QFont bold = target.font();
      bold.setBold(true);
      for (int row = 0; row < target.topLevelItemCount(); ++row)
        for (int i = 0; i < target.columnCount(); ++i)
          target.topLevelItem(row)->setFont(i, row == marked ? bold : target.font());
      target.clearSelection();
      if (marked >= 0) target.topLevelItem(marked)->setSelected(true);
    };
  }
  return [] {};
}

}  // namespace

PlainEditor::PlainEditor(const QWidget& original) { Copy(original, nullptr); }

void PlainEditor::Copy(const QWidget& original, QWidget* parent) {
  QWidget* const copy = CopyOne(original, parent);
  copy->setObjectName(original.objectName());
  copy->setFont(original.font());
  copy->setGeometry(original.geometry());
  copy->setVisible(parent != nullptr && !original.isHidden());
  originals_.push_back(&original);
  copies_.push_back(copy);
  if (!IsContainer(original)) return;
  for (const QObject* child : original.children())
    if (child->isWidgetType()) Copy(static_cast<const QWidget&>(*child), copy);
}

PlainEditor::State PlainEditor::Capture() const {
  State state;
  for (std::size_t i = 1; i < originals_.size(); ++i) {
    QWidget* const copy = copies_[i];
    const QWidget& original = *originals_[i];
    state.push_back(bench::Capture(original, *copy));
    state.push_back([copy, enabled = original.isEnabledTo(original.parentWidget()), visible = !original.isHidden()] {
      copy->setEnabled(enabled);
      copy->setVisible(visible);
    });
  }
  return state;
}

QWidget& PlainEditor::Find(const QString& name) const { return *copies_.front()->findChild<QWidget*>(name); }

}  // namespace bench
