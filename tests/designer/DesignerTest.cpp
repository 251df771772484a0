#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "tests/designer/LoadForm.h"

/// The plugin as Designer and the loader of forms meet it: through the file, by Qt's own means.
namespace brivane::test {
namespace {

class Designer : public testing::Test {
 protected:
  static QList<QDesignerCustomWidgetInterface*> Widgets() {
    static QPluginLoader loader(QStringLiteral(PLUGIN));
    auto* const plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    if (plugin == nullptr) ADD_FAILURE() << loader.errorString().toStdString();
    return plugin == nullptr ? QList<QDesignerCustomWidgetInterface*>() : plugin->customWidgets();
  }
  static QDesignerCustomWidgetInterface* Find(const QString& name) {
    for (QDesignerCustomWidgetInterface* widget : Widgets())
      if (widget->name() == name) return widget;
    return nullptr;
  }
};

const QString kEditor = QStringLiteral("brivane::qt::VrijeKolomWidget");
const QString kExplanation = QStringLiteral("brivane::qt::ToelichtingWidget");

TEST_F(Designer, FindsBothWidgetsWithWhatItShowsOfThem) {
  ASSERT_EQ(Widgets().size(), 2);
  for (const auto& [name, header] : {std::pair(kEditor, "<brivane/toolkits/qt/VrijeKolomWidget.h>"),
                                     std::pair(kExplanation, "<brivane/toolkits/qt/ToelichtingWidget.h>")}) {
    QDesignerCustomWidgetInterface* const widget = Find(name);
    ASSERT_NE(widget, nullptr) << name.toStdString();
    EXPECT_EQ(widget->includeFile(), header);
    EXPECT_EQ(widget->group(), "Brivane");
    EXPECT_FALSE(widget->toolTip().isEmpty());
    EXPECT_FALSE(widget->whatsThis().isEmpty());
    EXPECT_FALSE(widget->isContainer());
    EXPECT_TRUE(widget->domXml().contains("class=\"" + name + "\""));
    EXPECT_EQ(widget->icon().actualSize({24, 24}), QSize(24, 24));
  }
  EXPECT_NE(Find(kEditor)->icon().pixmap(24).toImage(), Find(kExplanation)->icon().pixmap(24).toImage());
  EXPECT_NE(Find(kEditor)->toolTip(), Find(kExplanation)->toolTip());
}

/// On a form that is being drawn: in its own size, with the properties that Designer sets, and without a host.
TEST_F(Designer, DrawsTheWidgetsAliveWithoutACase) {
  for (const QString& name : {kEditor, kExplanation}) {
    QDesignerCustomWidgetInterface* const plugin = Find(name);
    // The plugin only asks whether there is one.
    static char designer;
    plugin->initialize(reinterpret_cast<QDesignerFormEditorInterface*>(&designer));
    EXPECT_TRUE(plugin->isInitialized());
    QWidget form;
    QWidget* const widget = plugin->createWidget(&form);
    EXPECT_EQ(widget->parentWidget(), &form);
    EXPECT_EQ(QString::fromLatin1(widget->metaObject()->className()), name);
    widget->resize(widget->sizeHint());
    const QImage before = widget->grab().toImage();
    EXPECT_TRUE(widget->setProperty("backColor", QColor(200, 230, 200)));
    EXPECT_NE(widget->grab().toImage(), before) << name.toStdString() << " does not show its colour";
    EXPECT_EQ(widget->property("backColor").value<QColor>(), QColor(200, 230, 200));
    plugin->initialize(nullptr);
  }
}

TEST_F(Designer, LoadsAFormWithItsPropertiesAndConnections) {
  const std::unique_ptr<QWidget> form = LoadForm();
  ASSERT_NE(form, nullptr);
  auto* const editor = form->findChild<QWidget*>("editor");
  ASSERT_NE(editor, nullptr);
  EXPECT_TRUE(editor->inherits("brivane::qt::VrijeKolomWidget"));
  EXPECT_EQ(editor->property("beeindigenZichtbaar"), QVariant(true));
  auto* const header = form->findChild<QLabel*>("header");
  ASSERT_TRUE(QMetaObject::invokeMethod(editor, "topDisplayChanged", Q_ARG(QString, "Vereniging")));
  EXPECT_EQ(header->text(), "Vereniging");
}

}  // namespace
}  // namespace brivane::test
