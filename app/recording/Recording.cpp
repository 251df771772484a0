#include "app/recording/Recording.h"

#include <QFile>
#include <QLocale>
#include <utility>

#include "controls/Surface.h"
#include "toolkits/qt/VrijeKolomWidget.h"

namespace brivane::dossier {

void Opname::Begin(std::shared_ptr<const Dossier> dossier, qt::VrijeKolomWidget& editor) {
  if (gekozen_.isEmpty()) return;
  pad_ = std::exchange(gekozen_, QString());
  editor_ = &editor;
  opnemer_ = std::make_unique<Opnemer>(std::move(dossier), controls::Surface::Of(editor.Surface()),
                                       QLocale().name().toStdString());
  opnemer_->gebroken = [this] {
    if (gebroken) gebroken();
  };
  editor.Toolkit().Desktop().answered = [this](host::MessageAnswer antwoord) { opnemer_->Beantwoord(antwoord); };
}

void Opname::Doe(Hostdaad daad, const std::function<void()>& uitvoering) {
  if (opnemer_)
    opnemer_->Doe(std::move(daad), uitvoering);
  else
    uitvoering();
}

void Opname::Breek() {
  if (opnemer_) opnemer_->Breek();
}

bool Opname::Stop() {
  if (!Loopt()) return true;
  // The recorder stays until the editor goes: a step may be running that will tell it so.
  opnemer_->Stop();
  // Nothing is written over: a file that came under the name meanwhile stays.
  QFile bestand(std::exchange(pad_, QString()));
  const QByteArray tekst = QByteArray::fromStdString(replay::WriteDocument(opnemer_->Document()));
  if (!bestand.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) return false;
  if (bestand.write(tekst) == tekst.size() && bestand.flush()) return true;
  bestand.remove();
  return false;
}

void Opname::LaatLos() {
  if (!opnemer_) return;
  editor_->Toolkit().Desktop().answered = nullptr;
  opnemer_.reset();
}

}  // namespace brivane::dossier
