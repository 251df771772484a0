#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <brivane/host/Error.h>
#include <brivane/hostkit/Host.h>
#include <brivane/hostkit/Report.h>
#include <brivane/hostkit/Show.h>

namespace brivane::hostkit {

/// What is asked of a host, and what the report says of it where the answer is another than wanted.
struct Question {
  std::string member;
  std::string written;  ///< what was written, asked or done before the answer
  std::string contract;
  std::string hint = {};
};

/// A check ends here: what it stands on is not there, and that was found.
struct Stop {};

/// One check and its host. Every access of the host goes through a question, so that what it throws is found with the
/// member that threw it.
class Bench {
 public:
  Bench(std::string_view check, const HostFactory& factory, const Options& options, Report& report);

  [[nodiscard]] const Options& Asked() const { return options_; }
  /// The host of this check, made when it is first asked for. Stops where there is none.
  [[nodiscard]] const hostkit::Host& Host();

  // The way to what is asked. Each stops where the host answers nothing.
  [[nodiscard]] std::shared_ptr<host::Dossier> Dossier();
  [[nodiscard]] std::shared_ptr<host::Lening> HuidigeLening();
  [[nodiscard]] std::shared_ptr<host::Lening> Lening(std::int16_t number);
  /// A column of the current loan, looked up anew.
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> Kolom(std::int16_t Vrij_Id);
  [[nodiscard]] std::shared_ptr<host::BedragObject> Bedrag(std::int16_t Vrij_Id);

  /// The answer is to be this.
  template <class Answer>
  void Same(const Question& question, const std::invoke_result_t<Answer>& wanted, Answer answer) {
    Guarded(question, [&] {
      const auto given = answer();
      if (!(given == wanted)) Find(question, Show(given), Show(wanted));
    });
  }
  /// The answer is to be an object; stops where there is none.
  template <class Answer> [[nodiscard]] auto Object(const Question& question, Answer answer) {
    std::invoke_result_t<Answer> object = nullptr;
    const bool answered = Guarded(question, [&] { object = answer(); });
    if (answered && object == nullptr) Find(question, "nothing", "an object");
    if (object == nullptr) throw Stop{};
    return object;
  }
  /// The answer is to be nothing.
  template <class Answer> void Nothing(const Question& question, Answer answer) {
    Guarded(question, [&] {
      if (answer() != nullptr) Find(question, "an object", "nothing");
    });
  }
  /// It is to be done without a failure.
  bool Done(const Question& question, const std::function<void()>& act) { return Guarded(question, act); }

  void Find(const Question& question, std::string cameBack, std::string wanted);
  /// Whether a value of this check is to be tried: the host has not said that it cannot. What is left out is told.
  [[nodiscard]] bool Tries(std::string_view value);
  void LeaveOut(std::string why);

 private:
  /// Runs what asks the host; what it throws is found. Answers whether it came to its end.
  bool Guarded(const Question& question, const std::function<void()>& ask);

  std::string check_;
  const HostFactory& factory_;
  const Options& options_;
  Report& report_;
  hostkit::Host host_;
};

}  // namespace brivane::hostkit
