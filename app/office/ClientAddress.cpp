#include "app/office/ClientAddress.h"

namespace brivane::app {
namespace {

constexpr char kScheme[] = "kantoor:";

}  // namespace

QString ClientAddress::Text() const { return QLatin1String(kScheme) + QString::number(client) + u':' + words; }

std::optional<ClientAddress> ClientAddress::Of(const QString& text) {
  if (!text.startsWith(QLatin1String(kScheme))) return std::nullopt;
  bool number = false;
  const int client = text.section(u':', 1, 1).toInt(&number);
  const QString words = text.section(u':', 2);
  if (!number || words.isEmpty()) return std::nullopt;
  return ClientAddress{words, client};
}

}  // namespace brivane::app
