#include "app/program/SampleSession.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <stdexcept>

#include "app/program/MessageBoxes.h"
#include "app/program/Pictures.h"
#include "app/program/WindowSubject.h"
#include "app/screen/MainWindow.h"
#include "replay/play/Session.h"

/// Resources of a library are there once somebody asked for them. The name is looked up in no namespace.
static void InitResources() { Q_INIT_RESOURCE(program); }

namespace brivane::app {
namespace {

/// A picture, and the step of the session after which it is made.
struct Moment {
  const char* step;
  const char* picture;
};

constexpr Moment kMoments[] = {
    {"10", "recurring-cost"}, {"13", "newspaper"}, {"17", "death-transition"}, {"19.4", "scenario"}};

/// The column that the session fills in first.
constexpr Place kAdded{0, 8};
/// A column of whose amount a part goes over to the partner on death.
constexpr Place kToPartner{0, 3};

void Must(bool done, const QString& what) {
  if (!done) throw std::runtime_error("not done: " + what.toStdString());
}

/// What a step acts on.
std::string NameOf(const replay::Step& step) {
  const auto* act = std::get_if<replay::ActStep>(&step.what);
  return act != nullptr ? act->control : step.name;
}

/// The session in a window of its own. What is not done as it should ends it with an exception.
class Showing {
 public:
  Showing(const QDir& folder, const QString& log)
      : folder_(folder),
        transcript_(folder.filePath(QStringLiteral("transcript.jsonl"))),
        eventLog_(log),
        window_(eventLog_) {
    if (!transcript_.open(QIODevice::WriteOnly | QIODevice::Truncate))
      throw std::runtime_error("cannot write the transcript");
    // Pictures are alike on every machine, whatever its screen.
    window_.resize(MainWindow::kFirstSize);
    window_.show();
  }

  void Play(const QString& path) {
    Open(path);
    if (!Dossier().FindKolom(kAdded.Len_Id, *kAdded.Vrij_Id)) Must(window_.Screen()->AddKolom(), "adding a column");
    playing_ = true;
    session_->Run();
    playing_ = false;
    if (!problem_.empty()) throw std::runtime_error(problem_);
    Must(pictures_ == std::size(kMoments), "every picture");
    TakePartnerOut();
    Must(window_.CloseDossier(), "closing the file");
  }

 private:
  [[nodiscard]] dossier::Dossier& Dossier() { return window_.Screen()->Dossier(); }

  /// Shows the file, with the session between its editor and its host.
  void Open(const QString& path) {
    std::unique_ptr<dossier::DossierFile> file = dossier::DossierFile::Open(path);
    window_.instrument = [this, dossier = file->Dossier()](EditorHost host) {
      const auto make = [this](const replay::Document& document, replay::InstrumentedHost&,
                               replay::Audience& audience) {
        return MakeWindowSubject(*window_.Screen(), document, audience);
      };
      session_ = std::make_unique<replay::Session>(
          document_, [this](std::string_view line) { Note(line); },
          replay::LiveHost{dossier, std::move(host.application), std::move(host.factories)}, make);
      session_->stepped = [this](const std::string& number, const replay::Step& step) { return After(number, step); };
      return EditorHost{session_->Host().Application(), session_->Host().Factories()};
    };
    window_.Show(std::move(file));
  }

  void Note(std::string_view line) {
    if (!playing_) return;
    transcript_.write(line.data(), static_cast<qint64>(line.size()));
    transcript_.write("\n");
    transcript_.flush();
    if (problem_.empty() && (line.starts_with("{\"failed\"") || line.starts_with("{\"ignored\"")))
      problem_ = "not done: " + std::string(line);
  }

  replay::Onward After(const std::string& number, const replay::Step& step) {
    QApplication::processEvents();
    if (!boxes_.First().isEmpty()) problem_ = NameOf(step) + " was answered: " + boxes_.First().toStdString();
    for (const Moment& moment : kMoments)
      if (problem_.empty() && number == moment.step) Picture(moment.picture);
    return problem_.empty() ? replay::Onward::GoOn : replay::Onward::Stop;
  }

  void Picture(const char* name) {
    QWidget* form = QApplication::activeModalWidget();
    if (TakePictures(form != nullptr ? *form : window_, folder_, QLatin1String(name)))
      ++pictures_;
    else
      problem_ = std::string("not done: writing picture ") + name;
  }

  void TakePartnerOut() {
    const std::vector<dossier::PersoonGegevens> aanvrager = {Dossier().Personen().front()};
    Must(window_.Screen()->SetClient(aanvrager, Dossier().Leeftijd()), "taking the partner out of the case");
    Must(window_.Screen()->GoTo(kToPartner), "going to the column with a transition");
    Must(TakePictures(window_, folder_, QStringLiteral("without-partner")), "writing picture without-partner");
  }

  const replay::Document document_ = ReadSampleSession();
  const MessageBoxes boxes_;
  QDir folder_;
  QFile transcript_;
  bool playing_ = false;
  std::size_t pictures_ = 0;
  std::string problem_;
  /// Outlives the window, whose editor holds the objects that it handed out.
  std::unique_ptr<replay::Session> session_;
  EventLog eventLog_;
  MainWindow window_;
};

}  // namespace

replay::Document ReadSampleSession() {
  InitResources();
  QFile file(QStringLiteral(":/sample-session.json"));
  Must(file.open(QIODevice::ReadOnly), file.fileName());
  return replay::ReadDocument(file.readAll().toStdString());
}

QString PlaySampleSession(const QString& outputFolder, const QString& file) {
  const QTemporaryDir aside;
  if (!QDir().mkpath(outputFolder)) return QStringLiteral("cannot make the folder '%1'").arg(outputFolder);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, aside.path());
  try {
    Showing(QDir(outputFolder), aside.filePath(QStringLiteral("logboek"))).Play(file);
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

}  // namespace brivane::app
