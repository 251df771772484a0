#include <emscripten/fiber.h>

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include <brivane/toolkits/web/Turns.h>

namespace brivane::web {

namespace {

/// The deepest that was met are events that open a form inside three others.
constexpr std::size_t kStack = 128 * 1024;
constexpr std::size_t kPutAside = 32 * 1024;
constexpr std::size_t kPutAsideOfPage = 4 * 1024;

template <std::size_t size> struct alignas(16) Room { std::array<char, size> bytes; };

}  // namespace

/// A stack, with what is put aside of it. It is used again by later turns.
struct Turn {
  emscripten_fiber_t fiber{};
  std::function<void()> work;
  bool ended = false;
  Room<kStack> stack;
  Room<kPutAside> putAside;
};

namespace {

emscripten_fiber_t page_;
Room<kPutAsideOfPage> pagePutAside_;
Turn* running_ = nullptr;
int calledBack_ = 0;
std::vector<std::unique_ptr<Turn>> idle_;
std::vector<Waiting*> waiting_;

void Run(void* argument) {
  Turn& turn = *static_cast<Turn*>(argument);
  for (;;) {
    turn.work();
    turn.work = nullptr;
    turn.ended = true;
    emscripten_fiber_swap(&turn.fiber, &page_);
  }
}

void GoTo(Turn& turn) {
  static const bool known = [] {
    emscripten_fiber_init_from_current_context(&page_, pagePutAside_.bytes.data(), kPutAsideOfPage);
    return true;
  }();
  (void)known;
  running_ = &turn;
  emscripten_fiber_swap(&page_, &turn.fiber);
  running_ = nullptr;
  if (turn.ended) idle_.emplace_back(&turn);
}

}  // namespace

void RunTurn(std::function<void()> work) {
  std::unique_ptr<Turn> turn;
  if (idle_.empty()) {
    turn = std::make_unique<Turn>();
    emscripten_fiber_init(&turn->fiber, Run, turn.get(), turn->stack.bytes.data(), kStack, turn->putAside.bytes.data(),
                          kPutAside);
  } else {
    turn = std::move(idle_.back());
    idle_.pop_back();
  }
  turn->work = std::move(work);
  turn->ended = false;
  GoTo(*turn.release());
  GoOn();
}

void GoOn() {
  while (!waiting_.empty() && waiting_.back()->ended_) GoTo(*waiting_.back()->turn_);
}

bool CanWait() { return running_ != nullptr && calledBack_ == 0; }

CalledBack::CalledBack() { ++calledBack_; }
CalledBack::~CalledBack() { --calledBack_; }

void Waiting::Wait() {
  if (!CanWait()) return;
  turn_ = running_;
  waiting_.push_back(this);
  while (!ended_ || waiting_.back() != this) emscripten_fiber_swap(&turn_->fiber, &page_);
  waiting_.pop_back();
}

}  // namespace brivane::web
