#pragma once

#include <cstdint>
#include <memory>

#include <brivane/host/model/VrijeKolomItem.h>

namespace brivane::host {

/// A loan: the holder of free columns. A column has an identifier of its own within its loan, and a running position
/// that moves up when one before it is removed.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class Lening {
 public:
  virtual ~Lening() = default;

  /// The free column with that identifier, as the editor looks it up at each binding; nothing when there is none, which
  /// fails the binding with error 91.
  [[nodiscard]] virtual std::shared_ptr<VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) = 0;
  /// The same look-up, as the explanation control makes it: with each binding of the editor, and after each change of a
  /// burden or fiscal correction.
  [[nodiscard]] virtual std::shared_ptr<VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) = 0;
  /// The free column at a running position from 1; nothing past the last. The question whether a change is carried over
  /// walks the loans of the new situation by it, and asks each column for its VrijeKolomItem::Id alone.
  [[nodiscard]] virtual std::shared_ptr<VrijeKolomItem> VrijeKolomOp(std::int16_t positie) = 0;
  /// Takes the free column at a running position out of the loan; the next one moves up. When the adviser answers "Ja"
  /// to the question whether a change is carried over, for each column of the new situation with the same identifier.
  virtual void VerwijderVrijeKolom(std::int16_t positie) = 0;
};

}  // namespace brivane::host
