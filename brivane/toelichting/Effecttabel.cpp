#include <string>

#include <brivane/toelichting/Effecttabel.h>

namespace brivane::toelichting {

std::size_t EffectRij(std::int16_t correctieLast, std::int16_t correctieFiscaal) {
  const std::string code = std::to_string(correctieLast) + std::to_string(correctieFiscaal);
  for (std::size_t i = 0; i < kEffecten.size(); ++i)
    if (kEffecten[i].code == code) return i + 1;
  return 0;
}

}  // namespace brivane::toelichting
