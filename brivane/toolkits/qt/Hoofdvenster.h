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
  /// A window, or any widget in it; may be nothing. It stays its owner's.
  explicit Hoofdvenster(QWidget* venster) : venster_(venster) {}
  /// The widget that was given; nothing once it was deleted.
  [[nodiscard]] QWidget* Venster() const { return venster_; }

 private:
  QPointer<QWidget> venster_;
};

}  // namespace brivane::qt
