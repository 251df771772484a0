#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "host/MemoryHost.h"
#include <brivane/host/Error.h>
#include <brivane/host/model/VrijeKolomFields.h>

/// One column kept in a text file, a field on each line, and read from it again.
///
///     file_store::Store store("vereniging.txt", column);
///     editor.SetHostFactories(store.Factories());
///
/// The controls write field by field. What belongs together lies between the outermost EnterProcedure and its
/// LeaveProcedure, so that is when the file is written: as a whole, beside the old one, and then in its place. A file
/// that cannot be written is a host::Error, which reaches the host's ReportError.
namespace file_store {

namespace host = brivane::host;

inline void Write(std::ostream& out, const std::string& value) { out << std::quoted(value); }
inline void Write(std::ostream& out, host::Date value) { out << value.Days(); }
template <class T> void Write(std::ostream& out, T value) {
  static_assert(std::is_arithmetic_v<T>);
  out << std::setprecision(std::numeric_limits<double>::max_digits10) << value;
}

inline void Read(std::istream& in, std::string& value) { in >> std::quoted(value); }
inline void Read(std::istream& in, host::Date& value) {
  std::int32_t days = 0;
  in >> days;
  value = host::Date(days);
}
template <class T> void Read(std::istream& in, T& value) {
  static_assert(std::is_arithmetic_v<T>);
  in >> value;
}

/// Hands over each field that is written by its setter, with a name of one word.
template <class Visitor> void EachField(Visitor&& visit) {
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    if constexpr (requires { field.set; }) visit(field);
  });
}

class Store {
 public:
  Store(std::filesystem::path file, std::shared_ptr<memory_host::VrijeKolomItem> column)
      : file_(std::move(file)), column_(std::move(column)) {
    if (std::filesystem::exists(file_)) Load();
    stored_ = Text();
  }

  [[nodiscard]] host::HostFactories Factories() {
    return {.MaakProcedureTrace = [this](std::string_view) { return std::make_shared<Trace>(*this); },
            .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }};
  }

  /// Writes the file where the column is not as it was stored.
  void Save() {
    const std::string text = Text();
    if (text == stored_) return;
    const std::filesystem::path beside = file_.string() + ".new";
    std::ofstream out(beside);
    out << text;
    out.close();
    std::error_code failed;
    if (out) std::filesystem::rename(beside, file_, failed);
    if (!out || failed) throw host::Error(75, "The file cannot be written: " + file_.string(), "FileStore");
    stored_ = text;
  }

 private:
  /// Follows the procedures of a control. Those of the editor and of its explanation call each other, so that they
  /// share one list of what runs.
  class Trace final : public memory_host::Trace {
   public:
    explicit Trace(Store& store) : store_(store) {}
    void EnterProcedure(std::string_view procedure) override { store_.running_.emplace_back(procedure); }
    void LeaveProcedure() override {
      store_.running_.pop_back();
      if (store_.running_.empty()) store_.Save();
    }
    void ErrorInProcedure(std::string_view procedure) override { store_.Failed(procedure); }

   private:
    Store& store_;
  };

  /// A procedure ended by a failure, and with it those that it called. What it wrote stays written. Where that cannot
  /// be stored either, the person hears of the first failure.
  void Failed(std::string_view procedure) {
    const auto last = std::find(running_.rbegin(), running_.rend(), procedure);
    if (last == running_.rend()) return;  // it was ended already: saving failed
    running_.erase(std::prev(last.base()), running_.end());
    try {
      if (running_.empty()) Save();
    } catch (const host::Error&) {
    }
  }

  [[nodiscard]] std::string Text() const {
    std::ostringstream out;
    EachField([&](const auto& field) {
      out << field.name;
      WriteField(out, field);
      out << '\n';
    });
    out << "Basisbedrag ";
    Write(out, column_->bedrag->basisbedrag);
    for (const auto& entry : column_->bedrag->periodes) {
      out << "\nPeriode " << entry->maand << ' ';
      for (const double value : {entry->bedrag, entry->percentage, entry->korting}) {
        Write(out, value);
        out << ' ';
      }
      out << entry->eenmalig;
    }
    out << '\n';
    return out.str();
  }

  template <class Field> void WriteField(std::ostream& out, const Field& field) const {
    const auto one = [&](const auto& value) {
      out << ' ';
      Write(out, value);
    };
    if constexpr (requires { std::tuple_size<typename Field::Value>::value; })
      for (const auto& value : field.Read(*column_)) one(value);
    else
      one(field.Read(*column_));
  }

  template <class Field> void ReadField(std::istream& in, const Field& field) {
    typename Field::Value value;
    if constexpr (requires { std::tuple_size<typename Field::Value>::value; }) {
      for (std::size_t i = 0; i < value.size(); ++i) {
        Read(in, value[i]);
        ((*column_).*field.set)(static_cast<std::int16_t>(i + 1), value[i]);
      }
    } else {
      Read(in, value);
      ((*column_).*field.set)(value);
    }
  }

  void Load() {
    std::ifstream file(file_);
    for (std::string line; std::getline(file, line);) {
      std::istringstream in(line);
      std::string name;
      in >> name;
      if (name == "Basisbedrag") Read(in, column_->bedrag->basisbedrag);
      if (name == "Periode") {
        auto entry = std::make_shared<memory_host::Periode>();
        in >> entry->maand >> entry->bedrag >> entry->percentage >> entry->korting >> entry->eenmalig;
        column_->bedrag->periodes.push_back(entry);
      }
      EachField([&](const auto& field) {
        if (field.name == name) ReadField(in, field);
      });
      if (!in) throw host::Error(321, "Not a column: " + line, "FileStore");
    }
  }

  std::filesystem::path file_;
  std::shared_ptr<memory_host::VrijeKolomItem> column_;
  std::string stored_;
  std::vector<std::string> running_;  ///< the procedures that have begun and not ended
};

}  // namespace file_store
