#pragma once

#include <cstdint>
#include <memory>

#include <brivane/host/model/Lening.h>
#include <brivane/host/model/Persoon.h>

namespace brivane::host {

/// The case: a client's loan file.
class Dossier {
 public:
  virtual ~Dossier() = default;

  /// The loan of the current situation.
  [[nodiscard]] virtual std::shared_ptr<host::Lening> HuidigeLening() = 0;
  /// The loans of the new situation by number from 1, nothing past the last; the current loan for 0.
  [[nodiscard]] virtual std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) = 0;
  /// Person 1 (applicant) or 2 (partner); nothing when there is no such person.
  [[nodiscard]] virtual std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) = 0;

  /// Registers a free column in proposal 1 to 3; repeating it must be accepted.
  virtual void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) = 0;
  /// Takes a free column out of proposal 1 to 3. The third argument is always 0.
  virtual void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) = 0;
};

}  // namespace brivane::host
