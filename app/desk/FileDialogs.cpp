#include "app/desk/FileDialogs.h"

#include <QAbstractFileIconProvider>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QSettings>
#include <QStyle>
#include <QTemporaryDir>
#include <QTimer>

#include "app/desk/Messages.h"
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

/// Tells a file by its name: Qt's own opens each file that a dialog shows.
class NamesOnly final : public QAbstractFileIconProvider {
 public:
  [[nodiscard]] QIcon icon(IconType type) const override {
    return QApplication::style()->standardIcon(type == File ? QStyle::SP_FileIcon : QStyle::SP_DirIcon);
  }
  [[nodiscard]] QIcon icon(const QFileInfo& info) const override { return icon(info.isDir() ? Folder : File); }
  [[nodiscard]] QString type(const QFileInfo& info) const override {
    if (info.isDir()) return QStringLiteral("Map");
    return info.suffix() == QStringLiteral("dossier") ? QStringLiteral("Dossier") : QStringLiteral("Bestand");
  }
};

/// While it lives, what Qt keeps for its own dialogs goes into a folder that goes with it.
class NothingKept {
 public:
  NothingKept() {
    // Where this program's own settings stand tells where Qt has them.
    const QString own = QSettings().fileName();
    const QString tail = u'/' + QApplication::organizationName() + u'/' + QApplication::applicationName();
    before_ = own.left(own.lastIndexOf(tail));
    Use(aside_.path());
  }
  NothingKept(const NothingKept&) = delete;
  NothingKept& operator=(const NothingKept&) = delete;
  ~NothingKept() { Use(before_); }
  [[nodiscard]] QString EmptyFolder() const { return aside_.path(); }

 private:
  static void Use(const QString& folder) { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder); }

  QTemporaryDir aside_;
  QString before_;
};

class Dialog final : public QFileDialog {
 public:
  /// It begins to look around before its icons can be set: in a folder without files.
  Dialog(QWidget* above, const FileQuestion& question, const QString& emptyFolder)
      : QFileDialog(above, question.title, emptyFolder, question.filter) {
    setOption(DontUseNativeDialog);
    // It is here to choose: its list would rename and delete files, the open one too.
    setOption(ReadOnly);
    // The model looks around in a thread of its own until the dialog's base is gone.
    static NamesOnly names;
    setIconProvider(&names);
    setDirectory(question.folder);
    setHistory({});
    for (QLineEdit* box : findChildren<QLineEdit*>()) qt::TypesNothingWithAlt(*box);
  }
  void accept() override {
    if (refused_) return;
    const QFileInfo chosen(selectedFiles().value(0));
    if (acceptMode() == AcceptOpen || chosen.isDir() || !(chosen.exists() || chosen.isSymLink())) {
      QFileDialog::accept();
      return;
    }
    ShowMessage(this, windowTitle(),
                QStringLiteral("In de map \"%1\" staat al een bestand \"%2\". Kies een andere naam.")
                    .arg(QDir::toNativeSeparators(chosen.absolutePath()), chosen.fileName()));
    // One Enter is heard by the box and by the button.
    refused_ = true;
    QTimer::singleShot(0, this, [this] { refused_ = false; });
  }

  [[nodiscard]] QString Ask() { return exec() == Accepted ? selectedFiles().value(0) : QString(); }

 private:
  bool refused_ = false;
};

}  // namespace

QString AskFileToOpen(QWidget* above, const FileQuestion& question) {
  const NothingKept nothingKept;
  Dialog dialog(above, question, nothingKept.EmptyFolder());
  dialog.setFileMode(QFileDialog::ExistingFile);
  return dialog.Ask();
}

QString NameForFile(const QString& name) {
  QString text = name;
  for (QChar& one : text) {
    if (one.unicode() < 0x20 || QStringLiteral("/\\:*?\"<>|").contains(one)) one = u'-';
  }
  return text;
}

QString AskNewFile(QWidget* above, const FileQuestion& question, const QString& suffix, const QString& name) {
  const NothingKept nothingKept;
  Dialog dialog(above, question, nothingKept.EmptyFolder());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  // A name that is taken is refused, not asked about.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(QString(name).replace(u'/', u'-') + u'.' + suffix);
  return dialog.Ask();
}

}  // namespace brivane::app
