#include "app/program/SampleSession.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <stdexcept>

#include "app/program/DarkPalette.h"
#include "app/program/Transcript.h"
#include "app/screen/MainWindow.h"
#include "controls/Surface.h"
#include "frame/Calendar.h"
#include "scenario/frmScenario.h"

namespace brivane::app {
namespace {

using controls::Enter;

host::Date DateOf(int day, int month, int year) { return frame::MakeDate({.year = year, .month = month, .day = day}); }

/// Closes each box that the window itself shows, and keeps what the first one said: nobody is there to read it.
class Boxes final : public QObject {
 public:
  Boxes() { QApplication::instance()->installEventFilter(this); }
  [[nodiscard]] const QString& First() const { return first_; }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
    if (box != nullptr) {
      if (first_.isEmpty()) first_ = (box->text() + u' ' + box->informativeText()).simplified();
      QTimer::singleShot(0, box, &QDialog::reject);
    }
    return QObject::eventFilter(object, event);
  }

 private:
  QString first_;
};

/// One session on an open file. A step that is not done as it should ends it with an exception.
class Session {
 public:
  Session(MainWindow& window, const QDir& folder, const Boxes& boxes)
      : boxes_(boxes),
        window_(window),
        folder_(folder),
        screen_(*window.Screen()),
        editor_(screen_.Kolom().Editor()),
        transcript_(folder.filePath(QStringLiteral("transcript.jsonl")), screen_.Dossier()) {
    if (!transcript_.IsOpen()) throw std::runtime_error("cannot write the transcript");
    editor_.Toolkit().AddListener(transcript_);
    editor_.Toolkit().Desktop().answer = [this](const std::string& title, const std::string& text,
                                                host::MessageStyle style) { return Answer(title, text, style); };
    QObject::connect(&editor_, &qt::VrijeKolomWidget::refreshTopDisplay, &window_, [this](const QString& text) {
      transcript_.Write({{u"refreshTopDisplay"_qs, text}});
    });
    QObject::connect(&editor_, &qt::VrijeKolomWidget::heightChanged, &window_, [this] {
      transcript_.Write({{u"heightChanged"_qs, editor_.sizeHint().height()}});
    });
    QObject::connect(&screen_, &DossierScreen::stored, &window_, [this] { transcript_.Stored(); });
  }
  ~Session() {
    // A session that came to its end has closed the file, and the editor with it.
    if (window_.Screen() == nullptr) return;
    editor_.Toolkit().RemoveListener(transcript_);
    editor_.Toolkit().Desktop().answer = nullptr;
    editor_.disconnect(&window_);
    screen_.disconnect(&window_);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void Play() {
    TerugkerendeLast();
    Krant();
    Overlijden();
    NieuweKolom();
    Scenario();
    ZonderPartner();
  }

 private:
  static void Must(bool done, const std::string& what) {
    if (!done) throw std::runtime_error("not done: " + what);
  }

  void TerugkerendeLast() {
    GoTo({0, 1});
    Do("TxtDtAanvang", Enter{DateOf(1, 9, 2025)});
    Do("TxtAnJaar", Enter{9.0});
    Do("TxtAnMaand", Enter{14.0});
    Do("TxtBd", Enter{512.75});
    Picture("recurring-cost");
  }

  void Krant() {
    GoTo({0, 2});
    Do("txtProductnaam", Enter{std::string("De Maasbode, dagelijks")});
    Do("txtVervaldatum", Enter{DateOf(30, 6, 2029)});
    Picture("newspaper");
  }

  void Overlijden() {
    GoTo({0, 3});
    Do("Toelichting.jnOverlijden", controls::Toggle{host::kJa});
    Do("Toelichting.TxtPcOvergang", Enter{62.5});
    Do("Toelichting.txtEinddatum", Enter{DateOf(1, 3, 2049)});
    Picture("death-transition");
  }

  /// Left too early it is refused: a column needs a start date.
  void NieuweKolom() {
    Must(screen_.AddKolom(), "adding a column");
    QApplication::processEvents();
    const Place created = screen_.Shown();
    Do("TxtOm", Enter{std::string("Contributie fotoclub")});
    Do("TxtBd", Enter{27.5});
    Must(!screen_.GoTo({0, 1}), "refusing to leave a column without a start date");
    Do("TxtDtAanvang", Enter{DateOf(1, 1, 2027)});
    Must(screen_.Shown() == created, "staying in the column");
  }

  void Scenario() {
    GoTo({0, 5});
    // The form runs an event loop of its own, in which the timer goes off.
    QTimer later;
    later.setSingleShot(true);
    bool filled = false;
    const host::Subscription opened = screen_.Scenario().Geopend.Connect([&](frmScenario& form) {
      QObject::connect(&later, &QTimer::timeout, &window_, [&] {
        FillScenario(form);
        filled = true;
      });
      later.start(100);
    });
    Do("cmdScenario", controls::Press{});
    if (!error_.empty()) throw std::runtime_error(error_);
    Must(filled, "showing the year-by-year form");
  }

  /// The partner taken out of the case, on the column that goes over to a partner on death.
  void ZonderPartner() {
    const std::vector<dossier::PersoonGegevens> aanvrager = {screen_.Dossier().Personen().front()};
    Must(screen_.SetClient(aanvrager, screen_.Dossier().Leeftijd()), "taking the partner out of the case");
    GoTo({0, 3});
    Picture("without-partner");
  }

  void FillScenario(frmScenario& form) {
    controls::Surface& surface = controls::Surface::Of(form.Form());
    try {
      Do(surface, "txtBedrag", 1, Enter{6250.0});
      Do(surface, "txtBedrag", 4, Enter{7000.0});
      Do(surface, "chkAanvullen", frame::kNoIndex, controls::Tick{host::kTicked});
      Do(surface, "txtBedrag", 8, Enter{8250.0});
      Picture("scenario", QApplication::activeModalWidget());
      Do(surface, "cmdOK", frame::kNoIndex, controls::Press{});
    } catch (const std::runtime_error& error) {
      error_ = error.what();
      static_cast<void>(surface.Perform(controls::Close{}));
    }
  }

  void GoTo(const Place& place) {
    Must(screen_.GoTo(place), "going to column " + std::to_string(*place.Vrij_Id));
    transcript_.Write({{u"column"_qs, *place.Vrij_Id}, {u"loan"_qs, place.Len_Id}});
  }

  void Do(const char* name, const controls::Action& action) {
    Do(controls::Surface::Of(editor_.Surface()), name, frame::kNoIndex, action);
  }

  void Do(controls::Surface& surface, const char* name, int index, const controls::Action& action) {
    controls::AnyControl* control = surface.Find(name, index);
    Must(control != nullptr && control->Perform(action) == controls::Outcome::Done, name);
    QApplication::processEvents();
    if (!boxes_.First().isEmpty())
      throw std::runtime_error(std::string(name) + " was answered: " + boxes_.First().toStdString());
  }

  host::MessageAnswer Answer(const std::string& title, const std::string& text, host::MessageStyle style) {
    const bool question = style == host::MessageStyle::YesNoQuestion;
    transcript_.Write({{u"message"_qs, QString::fromStdString(text)},
                       {u"title"_qs, QString::fromStdString(title)},
                       {u"answer"_qs, question ? u"Nee"_qs : u"OK"_qs}});
    return question ? host::MessageAnswer::No : host::MessageAnswer::Ok;
  }

  void Picture(const char* name) { Picture(name, &window_); }
  void Picture(const char* name, QWidget* what) {
    Must(what != nullptr, name);
    const QPalette light = QApplication::palette();
    Save(what, QLatin1String(name) + QStringLiteral("-light.png"));
    QApplication::setPalette(DarkPalette());
    Save(what, QLatin1String(name) + QStringLiteral("-dark.png"));
    QApplication::setPalette(light);
  }

  void Save(QWidget* what, const QString& name) {
    QApplication::processEvents();
    Must(what->grab().save(folder_.filePath(name)), "writing " + name.toStdString());
    transcript_.Write({{u"picture"_qs, name}});
  }

  const Boxes& boxes_;
  MainWindow& window_;
  QDir folder_;
  DossierScreen& screen_;
  qt::VrijeKolomWidget& editor_;
  Transcript transcript_;
  std::string error_;
};

}  // namespace

QString PlaySampleSession(const QString& outputFolder, const QString& file) {
  const QTemporaryDir aside;
  if (!QDir().mkpath(outputFolder)) return QStringLiteral("cannot make the folder '%1'").arg(outputFolder);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, aside.path());
  EventLog eventLog(aside.filePath(QStringLiteral("logboek")));
  const Boxes boxes;
  MainWindow window(eventLog);
  // Pictures are alike on every machine, whatever its screen.
  window.resize(MainWindow::kFirstSize);
  window.show();
  try {
    window.Show(dossier::DossierFile::Open(file));
    Session(window, QDir(outputFolder), boxes).Play();
    if (!window.CloseDossier()) return QStringLiteral("not done: closing the file");
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

}  // namespace brivane::app
