#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace brivane::dossier {

/// What the program was asked to do.
enum class Opdracht : std::uint8_t {
  Venster,    ///< open the window, on `bestand` where one was named
  Voorbeeld,  ///< write the sample loan file to `bestand`
  Sessie,     ///< play the sample session on `bestand`, pictures and transcript into `uitvoermap`
  Help,
  Versie,
  Fout,  ///< `melding` tells what is wrong, in one line
};

struct Opdrachtregel {
  Opdracht opdracht = Opdracht::Venster;
  QString bestand;
  QString uitvoermap;
  QString melding;
};

/// Exit code for arguments that make no sense.
inline constexpr int kVerkeerdeArgumenten = 2;

/// The arguments that follow the program's name, as texts; nothing where one is not UTF-8: the name of another file
/// would come of it.
[[nodiscard]] std::optional<QStringList> DecodeArguments(int count, const char* const* arguments);

/// Reads the arguments that follow the program's name.
[[nodiscard]] Opdrachtregel LeesOpdrachtregel(const QStringList& argumenten);

/// The text of --help.
[[nodiscard]] QString Helptekst();

}  // namespace brivane::dossier
