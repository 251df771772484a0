#pragma once

#include <cstdint>
#include <memory>

#include <brivane/host/model/VrijeKolomItem.h>

namespace brivane::host {

/// A loan: the holder of free columns.
class Lening {
 public:
  virtual ~Lening() = default;

  /// The free column with that identifier, as the editor looks it up; nothing when there is none.
  [[nodiscard]] virtual std::shared_ptr<VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) = 0;
  /// The same look-up, as the explanation control makes it.
  [[nodiscard]] virtual std::shared_ptr<VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) = 0;
  /// The free column at a running position from 1; nothing past the last.
  [[nodiscard]] virtual std::shared_ptr<VrijeKolomItem> VrijeKolomOp(std::int16_t positie) = 0;
  /// Takes the free column at a running position out of the loan; the next one moves up.
  virtual void VerwijderVrijeKolom(std::int16_t positie) = 0;
};

}  // namespace brivane::host
