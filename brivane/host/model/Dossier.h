#pragma once

#include <cstdint>
#include <memory>

#include <brivane/host/model/Lening.h>
#include <brivane/host/model/Persoon.h>

namespace brivane::host {

/// The case: a client's loan file.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class Dossier {
 public:
  virtual ~Dossier() = default;

  /// The loan of the current situation: one object however often it is asked for, because a complete check compares by
  /// identity. Asked at every binding, whatever loan that is to, and at a complete check. A case without it can be
  /// bound to the loans of the new situation alone.
  [[nodiscard]] virtual std::shared_ptr<host::Lening> HuidigeLening() = 0;
  /// The loans of the new situation by number from 1, nothing past the last; the current loan for 0. Asked at every
  /// binding with the number that the host gave, 0 too, and from 1 up by the question whether a change is carried over.
  /// What answers nothing must not fail.
  [[nodiscard]] virtual std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) = 0;
  /// Person 1 (applicant) or 2 (partner); nothing when there is no such person. Both are asked at every binding; every
  /// case has an applicant, and a binding without fails.
  [[nodiscard]] virtual std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) = 0;

  /// Registers a free column in proposal 1 to 3; repeating it must be accepted: each tick tells it for every proposal
  /// that the column is in. A case that does not work with proposals may do nothing here.
  virtual void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) = 0;
  /// Takes a free column out of proposal 1 to 3, also where it is in none. The third argument is always 0. When a
  /// proposal is unticked, for all three when a change is carried over, and at a complete check of a column of the
  /// current loan for each that was never set.
  virtual void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) = 0;
};

}  // namespace brivane::host
