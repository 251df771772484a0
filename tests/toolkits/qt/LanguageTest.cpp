#include <QFile>
#include <QTranslator>

#include "tests/toolkits/qt/SurfaceTest.h"
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>

/// What the widgets add to the controls, in the language of the application's translators.
namespace brivane::test {
namespace {

using frame::TextId;

/// The file of a translator for a language of the library's own.
QByteArray FileOf(frame::Language language, const QString& name) {
  const auto element = [](const char* tag, const std::string& text) {
    return QStringLiteral("        <%1>%2</%1>\n")
        .arg(QString::fromLatin1(tag), QString::fromStdString(text).toHtmlEscaped());
  };
  QString file = QStringLiteral(
                     "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                     "<TS version=\"2.1\" language=\"%1\" sourcelanguage=\"nl\">\n<context>\n"
                     "    <name>Brivane</name>\n")
                     .arg(name);
  for (int i = 0; i < frame::kTextCount; ++i) {
    const auto text = static_cast<TextId>(i);
    file += QStringLiteral("    <message>\n") + element("extracomment", std::string(frame::NameOf(text))) +
            element("source", frame::Texts::In(frame::Language::Dutch).Of(text)) +
            element("translation", frame::Texts::In(language).Of(text)) + QStringLiteral("    </message>\n");
  }
  return (file + QStringLiteral("</context>\n</TS>\n")).toUtf8();
}

/// BRIVANE_WRITE=1 writes it anew.
TEST(Language, TheFileOfTranslatorsHoldsTheCatalogue) {
  const QByteArray wanted = FileOf(frame::Language::English, QStringLiteral("en"));
  QFile file(QStringLiteral(BRIVANE_TRANSLATIONS "/brivane_en.ts"));
  if (qEnvironmentVariableIsSet("BRIVANE_WRITE")) {
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(wanted);
    file.close();
  }
  ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
  EXPECT_EQ(file.readAll().toStdString(), wanted.toStdString());
}

/// An application whose host chose English.
class InEnglish : public SurfaceTest {
 protected:
  InEnglish() {
    loaded_ = english_.load(QStringLiteral("brivane_en"), QStringLiteral(BRIVANE_COMPILED_TRANSLATIONS));
    QCoreApplication::installTranslator(&english_);
  }
  ~InEnglish() override { QCoreApplication::removeTranslator(&english_); }
  void SetUp() override { ASSERT_TRUE(loaded_) << "package qt6-l10n-tools"; }

  QTranslator english_;
  bool loaded_ = false;
};

TEST_F(InEnglish, EveryTextIsTheCatalogues) {
  for (int i = 0; i < frame::kTextCount; ++i) {
    const auto text = static_cast<TextId>(i);
    EXPECT_EQ(qt::TranslatedTexts().Of(text), frame::Texts::In(frame::Language::English).Of(text));
  }
}

TEST_F(InEnglish, ABoxSaysWhyItRefusesAndWhatItMakesOfAText) {
  Focus("txtBedrag");
  TypeOver("12.50");
  Press(Qt::Key_Tab);
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtBedrag")), "Do you mean 12,50 or 1.250? Type a comma before the decimals.");
  TypeOver("12,50");
  Press(Qt::Key_Tab);
  Focus("txtDatum");
  TypeOver("1-4-2031");
  EXPECT_EQ(qt::Bubble::NoteOf(Entry("txtDatum")), "Tuesday 1 April 2031");
}

TEST_F(InEnglish, NamesAndTipsAreEnglishAndTheControlsOwnCaptionsAreNot) {
  qt::DateBox box;
  EXPECT_EQ(box.actions().front()->toolTip(), "Calendar (F4)");
  const qt::VrijeKolomWidget editor;
  EXPECT_EQ(editor.accessibleName(), "Free column");
  QStringList labels;
  for (const auto* label : editor.findChildren<QLabel*>()) labels << label->text();
  EXPECT_TRUE(labels.contains(QStringLiteral("No free column is open.")));
  EXPECT_EQ(editor.findChild<QWidget*>(QStringLiteral("TxtDtAanvang"))->accessibleName(), "Aanvangsdatum");
}

TEST(Language, WithoutATranslatorEveryTextIsDutch) {
  for (int i = 0; i < frame::kTextCount; ++i) {
    const auto text = static_cast<TextId>(i);
    EXPECT_EQ(qt::TranslatedTexts().Of(text), frame::Texts::In(frame::Language::Dutch).Of(text));
  }
}

}  // namespace
}  // namespace brivane::test
