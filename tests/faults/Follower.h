#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <brivane/hostkit/instrument/Members.h>

namespace brivane::faults {

/// The failure that the host is made to raise. Its number and texts occur nowhere else.
inline constexpr int kNumber = 31415;
inline constexpr char kDescription[] = "de host laat het afweten";
inline constexpr char kSource[] = "Proefhost";

/// Reads a transcript as it is written and holds it against the rules for procedures and failures: entries and
/// exits balance; a failure goes to the nearest procedure with a handler, which does nothing but report it, once;
/// without such a procedure it reaches the host; and a handler of the year-by-year form shows it in one box.
class Follower {
 public:
  explicit Follower(std::string title) : title_(std::move(title)) {}

  /// The host fails now, in the access of that member.
  void Strike(hostkit::Member member);
  void Take(std::string_view line);
  /// The session is over.
  void Finish();

  /// What went against the rules; empty when all is well.
  [[nodiscard]] const std::vector<std::string>& Problems() const { return problems_; }
  /// What each procedure itself wrote to the host or called: by procedure ("" for what is not traced) and member.
  using Writes = std::map<std::string, std::map<std::string, int>>;
  [[nodiscard]] const Writes& AllWrites() const { return writes_; }
  /// Every procedure that was entered, as `Toelichting.Fill_Controls`.
  [[nodiscard]] const std::map<std::string, int>& Entered() const { return entered_; }

 private:
  struct Procedure {
    std::string name;
    std::string control;
    [[nodiscard]] bool HasHandler() const;
  };
  /// A step that runs, or a form that is open; `base` procedures were running when it began.
  struct Level {
    enum class What { Step, Form } what;
    std::size_t base;
    std::string number;
  };

  void Begin(std::string_view line);
  void Leave(const std::string& control);
  void Error(const std::string& procedure, const std::string& control);
  void Failed();
  void Closed();
  void Wrote(const std::string& member);
  void EndStep();
  /// An inner step has no line for its end: what happens at its base belongs to what is around it.
  void EndInnerSteps();
  [[nodiscard]] std::size_t Base() const { return levels_.empty() ? 0 : levels_.back().base; }
  /// The procedure that handles a failure now, as its place from 1; 0 for none.
  [[nodiscard]] std::size_t Handler() const;
  [[nodiscard]] bool InForm(hostkit::Member member) const;
  void Expect(std::string line) { expected_.push_back(std::move(line)); }
  void Problem(std::string text);

  std::string title_;
  std::vector<Procedure> running_;
  std::vector<Level> levels_;
  std::deque<std::string> expected_;
  std::string awaitsReport_;  ///< the control whose handler runs
  std::map<std::string, bool> bound_;
  bool struck_ = false;
  bool silent_ = false;  ///< what the step did has failed: nothing more may be written in it
  Writes writes_;
  std::map<std::string, int> entered_;
  std::vector<std::string> problems_;
};

}  // namespace brivane::faults
