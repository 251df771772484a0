#include "replay/document/Document.h"

#include "replay/document/Records.h"

namespace brivane::replay {

namespace {

Headers ReadHeaders(const Value& value) {
  const std::string name = value.Text();
  if (name == "record") return Headers::Record;
  if (name == "computed") return Headers::Computed;
  value.Refuse("expected \"record\" or \"computed\"");
}

}  // namespace

Document ReadDocument(std::string_view text) {
  const Json json = ParseJson(text);
  const Value value(json, "");
  value.Keys(kDocumentKeys);
  Document document;
  ReadMachine(value, document);
  if (const auto headers = value.Find(kHeaders)) document.headers = ReadHeaders(*headers);
  ReadLog(value, document);
  document.dossier = ReadDossier(value.Member(kCase));
  ReadFaultsAndSteps(value, document);
  return document;
}

}  // namespace brivane::replay
