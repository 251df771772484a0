#pragma once

#include <QPointer>
#include <QWidget>

#include <brivane/host/Export.h>
#include <brivane/host/model/Hoofdvenster.h>

namespace brivane::qt {

/// A host's main window as its Application hands it out: the owner of the year-by-year form. It may be deleted before
/// this object; the form has no owner then.
///
///     std::shared_ptr<host::Hoofdvenster> MyApplication::Hoofdvenster() { return
///     std::make_shared<qt::Hoofdvenster>(window_); }
class BRIVANE_API Hoofdvenster : public host::Hoofdvenster {
 public:
  explicit Hoofdvenster(QWidget* venster) : venster_(venster) {}
  [[nodiscard]] QWidget* Venster() const { return venster_; }

 private:
  QPointer<QWidget> venster_;
};

}  // namespace brivane::qt
