#include "app/screen/KolomStand.h"

#include <brivane/host/model/Codes.h>

namespace brivane::app {

KolomStand StandVan(std::int16_t Len_Id, Versies versies, bool heeftNieuw) {
  if (!heeftNieuw) return KolomStand::Geen;
  if (Len_Id == host::codes::kHuidigeSituatie) return versies.inNieuw ? KolomStand::WijktAf : KolomStand::Volgt;
  return versies.inHuidig ? KolomStand::WijktAf : KolomStand::Nieuw;
}

QString StandTeken(KolomStand stand) {
  switch (stand) {
    case KolomStand::Geen: break;
    case KolomStand::Volgt: return QStringLiteral("=");
    case KolomStand::WijktAf: return QStringLiteral("≠");
    case KolomStand::Nieuw: return QStringLiteral("+");
  }
  return {};
}

QString StandWoord(KolomStand stand) {
  switch (stand) {
    case KolomStand::Geen: break;
    case KolomStand::Volgt: return QStringLiteral("volgt");
    case KolomStand::WijktAf: return QStringLiteral("wijkt af");
    case KolomStand::Nieuw: return QStringLiteral("nieuw");
  }
  return {};
}

}  // namespace brivane::app
