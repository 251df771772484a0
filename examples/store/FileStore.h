#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

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
  }

  [[nodiscard]] host::HostFactories Factories() {
    return {.MaakProcedureTrace = [this](std::string_view) { return std::make_shared<Trace>(*this); },
            .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }};
  }

  void Save() const {
    const std::filesystem::path beside = file_.string() + ".new";
    std::ofstream out(beside);
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
    out.close();
    std::error_code failed;
    if (out) std::filesystem::rename(beside, file_, failed);
    if (!out || failed) throw host::Error(75, "The file cannot be written: " + file_.string(), "FileStore");
  }

 private:
  /// Follows the procedures, and saves at the end of the outermost.
  class Trace final : public memory_host::Trace {
   public:
    explicit Trace(const Store& store) : store_(store) {}
    void EnterProcedure(std::string_view) override { ++depth_; }
    void LeaveProcedure() override {
      if (--depth_ == 0) store_.Save();
    }
    /// A procedure that fails does not come to its end: what it wrote stays written.
    void ErrorInProcedure(std::string_view) override {
      if (--depth_ == 0) store_.Save();
    }

   private:
    const Store& store_;
    int depth_ = 0;
  };

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
};

}  // namespace file_store
