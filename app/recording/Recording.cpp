#include "app/recording/Recording.h"

#include <QFile>
#include <QLocale>
#include <utility>

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

namespace brivane::app {

void Recording::Begin(std::shared_ptr<const dossier::Dossier> dossier, qt::VrijeKolomWidget& editor) {
  if (chosen_.isEmpty()) return;
  path_ = std::exchange(chosen_, QString());
  editor_ = &editor;
  recorder_ = std::make_unique<Recorder>(std::move(dossier), controls::Surface::Of(editor.Surface()),
                                         QLocale().name().toStdString());
  recorder_->broken = [this] {
    if (broken) broken();
  };
  editor.Toolkit().Desktop().answered = [this](host::MessageAnswer answer) { recorder_->Answered(answer); };
}

void Recording::Do(HostAct act, const std::function<void()>& body) {
  if (recorder_)
    recorder_->Do(act, body);
  else
    body();
}

void Recording::Break() {
  if (recorder_) recorder_->Break();
}

bool Recording::Stop() {
  if (!IsRunning()) return true;
  // The recorder stays until the editor goes: a step may be running that will tell it so.
  recorder_->Stop();
  // Nothing is written over: a file that came under the name meanwhile stays.
  QFile file(std::exchange(path_, QString()));
  const QByteArray text = QByteArray::fromStdString(replay::WriteDocument(recorder_->Document()));
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) return false;
  if (file.write(text) == text.size() && file.flush()) return true;
  file.remove();
  return false;
}

void Recording::LetGo() {
  if (!recorder_) return;
  editor_->Toolkit().Desktop().answered = nullptr;
  recorder_.reset();
}

}  // namespace brivane::app
