#include <brivane/host/Error.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>
#include <brivane/session/document/FieldJson.h>
#include <brivane/session/play/Dump.h>

namespace brivane::session {

namespace {

Json ToJson(const controls::DumpValue& value) {
  return std::visit(
      []<class T>(const T& held) -> Json {
        if constexpr (std::is_same_v<T, std::monostate>)
          return nullptr;
        else
          return FieldJson(held);
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

/// The fields of a record, by name in the order of their table.
template <class Table, class Record> Json Fields(const Table& table, const Record& record) {
  Json json = Json::object();
  host::ForEach(table, [&](const auto& field) { json[std::string(field.name)] = FieldJson(field.Read(record)); });
  return json;
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

Json DumpRecord(host::VrijeKolomItem& kolom) {
  Json json = Fields(host::kVrijeKolomFields, kolom);
  json["Bedrag"] = DumpRecord(host::Need(kolom.Bedrag()));
  return json;
}

Json DumpRecord(host::BedragObject& bedrag) {
  Json json{{"Naam", bedrag.Naam()}, {"Invoersoort", bedrag.Invoersoort()}, {"Bedrag", bedrag.Bedrag()}};
  Json& perioden = json["Perioden"] = Json::array();
  for (std::int16_t positie = 1; const auto periode = bedrag.Periode(positie); ++positie)
    perioden.push_back(Fields(host::kPeriodeFields, *periode));
  return json;
}

}  // namespace brivane::session
