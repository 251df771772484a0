#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dossier/model/Gegevens.h"
#include <brivane/session/document/Document.h>
#include <brivane/session/document/FieldJson.h>

/// A session of edits as data, with the case that it starts from.
namespace brivane::replay {

// What a session is on any host is the library's.
using namespace session;

/// Where the host takes the header texts of a column from.
enum class Headers : std::uint8_t {
  Record,    ///< the fields `Weergave` and `Kopregel`
  Computed,  ///< worded from the column, as the reference host does it
};

struct Document : session::Document {
  Headers headers = Headers::Record;
  dossier::DossierGegevens dossier;
};

/// Reads and checks a document, all of it but what only a running session can tell: whether a list has the
/// entry that a step picks, and whether the form has the row that a step names. Throws BadInput.
[[nodiscard]] Document ReadDocument(std::string_view text);

/// A document as text that reads back to the same one, each step on a line. What a step does decides its
/// name: `Step::name` and `Step::place` may be left empty.
[[nodiscard]] std::string WriteDocument(const Document& document);

using session::ToJson;
/// The records of a document as JSON, every field written out. Of a column, the host's keys and the
/// members of its proposals are no part of a document.
[[nodiscard]] Json ToJson(const dossier::BedragGegevens& bedrag);
[[nodiscard]] Json ToJson(const dossier::KolomGegevens& kolom);
[[nodiscard]] Json ToJson(const dossier::DossierGegevens& dossier);

}  // namespace brivane::replay
