#include "replay/play/Dump.h"

#include "replay/document/Document.h"
#include <brivane/host/Error.h>

namespace brivane::replay {

namespace {

Json ToJson(const controls::DumpValue& value) {
  return std::visit(
      []<class T>(const T& held) -> Json {
        if constexpr (std::is_same_v<T, host::Date>)
          return replay::ToJson(held);
        else if constexpr (std::is_same_v<T, std::monostate>)
          return nullptr;
        else
          return held;
      },
      value);
}

void AddList(Json& json, const controls::ControlDump::ListContent& list) {
  Json entries = Json::array();
  for (const auto& entry : list.entries) entries.push_back(entry.text);
  json["entries"] = std::move(entries);
  json["index"] = list.index;
}

void AddListView(Json& json, const controls::ControlDump::ListViewContent& list) {
  Json columns = Json::array();
  for (const auto& column : list.columns) columns.push_back(column.heading);
  Json rows = Json::array();
  for (const auto& item : list.items) {
    Json texts = Json::array();
    Json bold = Json::array();
    for (const auto& cell : item.cells) {
      texts.push_back(cell.text);
      bold.push_back(cell.bold);
    }
    rows.push_back({{"key", item.key}, {"texts", std::move(texts)}, {"bold", std::move(bold)}});
  }
  json["columns"] = std::move(columns);
  json["rows"] = std::move(rows);
  json["selected"] = list.selected == 0 ? Json(nullptr) : Json(list.items[list.selected - 1].key);
}

Json DumpControl(const controls::ControlDump& control) {
  Json json{{"visible", control.visible}, {"enabled", control.enabled}};
  if (!std::holds_alternative<std::monostate>(control.value)) json["value"] = ToJson(control.value);
  if (control.caption) json["caption"] = *control.caption;
  const auto measure = [&json](const char* name, host::Twips twips) { json[name] = static_cast<double>(twips.value); };
  measure("left", control.place.left);
  measure("top", control.place.top);
  measure("width", control.place.width);
  measure("height", control.place.height);
  if (control.backColor) json["backcolor"] = control.backColor->value;
  if (control.list) AddList(json, *control.list);
  if (control.listView) AddListView(json, *control.listView);
  return json;
}

dossier::PeriodeGegevens Read(const host::Periode& periode) {
  dossier::PeriodeGegevens gegevens;
  host::ForEach(host::kPeriodeFields, [&](const auto& field) { gegevens.*field.value = field.Read(periode); });
  return gegevens;
}

dossier::BedragGegevens Read(host::BedragObject& bedrag) {
  dossier::BedragGegevens gegevens{
      .Naam = bedrag.Naam(), .Invoersoort = bedrag.Invoersoort(), .Bedrag = bedrag.Bedrag(), .Perioden = {}};
  for (std::int16_t positie = 1; const auto periode = bedrag.Periode(positie); ++positie)
    gegevens.Perioden.push_back(Read(*periode));
  return gegevens;
}

dossier::KolomGegevens Read(host::VrijeKolomItem& kolom) {
  dossier::KolomGegevens gegevens;
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) { gegevens.*field.value = field.Read(kolom); });
  gegevens.Bedrag = Read(host::Need(kolom.Bedrag()));
  return gegevens;
}

}  // namespace

Json DumpControls(const controls::Surface& surface) { return DumpControls(controls::DumpAll(surface)); }

Json DumpControls(const std::vector<controls::ControlDump>& dump) {
  Json controls = Json::object();
  // The names are unique: appending spares a search through all of them for each.
  auto& members = controls.get_ref<Json::object_t&>();
  for (const controls::ControlDump& control : dump) members.emplace_back(control.name, DumpControl(control));
  return controls;
}

Json DumpRecord(host::VrijeKolomItem& kolom) { return replay::ToJson(Read(kolom)); }

Json DumpRecord(host::BedragObject& bedrag) { return replay::ToJson(Read(bedrag)); }

}  // namespace brivane::replay
