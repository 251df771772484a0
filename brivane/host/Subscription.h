#pragma once

#include <utility>
#include <vector>

namespace brivane::host {

namespace detail {

class Listeners;

/// One listener's place in the list of an event. It lives as long as its subscription, or the raising that is
/// telling it, keeps it.
struct Link {
  Link() = default;
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;
  virtual ~Link() = default;

  void Release() noexcept {
    if (--kept == 0) delete this;
  }

  Listeners* listeners = nullptr;  ///< asked by the subscription alone; nothing once the event has ended
  Link* previous = nullptr;
  Link* next = nullptr;
  int kept = 1;
};

/// The listeners of one event in the order of connecting, and the raisings of it that are under way.
class Listeners {
 public:
  /// Walks over the listeners that were there when it began, but for those that end meanwhile. Raisings of one event
  /// nest.
  class Raising {
   public:
// The destructor takes it out again unless the list is gone by then, which the compiler cannot see.
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ >= 12
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdangling-pointer"
#endif
    explicit Raising(Listeners& listeners) noexcept
        : listeners_(&listeners), outer_(listeners.raising_), next_(listeners.first_), last_(listeners.last_) {
      listeners.raising_ = this;
    }
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ >= 12
#pragma GCC diagnostic pop
#endif
    Raising(const Raising&) = delete;
    Raising& operator=(const Raising&) = delete;
    ~Raising() {
      LetGo();
      if (listeners_ != nullptr) listeners_->raising_ = outer_;
    }

    /// The next listener to tell, kept until the one after it is asked for; nothing past the last.
    [[nodiscard]] Link* Next() noexcept {
      // What a listener held may end others as it goes.
      LetGo();
      if (next_ == nullptr) return nullptr;
      now_ = next_;
      ++now_->kept;
      next_ = After(*now_);
      return now_;
    }

   private:
    friend class Listeners;

    [[nodiscard]] Link* After(const Link& link) const noexcept { return &link == last_ ? nullptr : link.next; }
    void LetGo() noexcept {
      if (now_ != nullptr) std::exchange(now_, nullptr)->Release();
    }
    void PassOver(const Link& link) noexcept {
      if (&link == next_) next_ = After(link);
      if (&link == last_) last_ = link.previous;
    }

    Listeners* listeners_;  ///< nothing once the event is gone
    Raising* outer_;
    Link* next_;
    Link* last_;
    Link* now_ = nullptr;
  };

  Listeners() = default;
  Listeners(const Listeners&) = delete;
  Listeners& operator=(const Listeners&) = delete;
  ~Listeners() {
    for (Raising* raising = raising_; raising != nullptr; raising = raising->outer_) {
      raising->listeners_ = nullptr;
      raising->next_ = nullptr;
    }
    for (Link* link = first_; link != nullptr; link = link->next) link->listeners = nullptr;
  }

  [[nodiscard]] bool Empty() const noexcept { return first_ == nullptr; }
  void Add(Link& link) noexcept {
    link.listeners = this;
    link.previous = last_;
    (last_ != nullptr ? last_->next : first_) = &link;
    last_ = &link;
  }
  void Remove(Link& link) noexcept {
    for (Raising* raising = raising_; raising != nullptr; raising = raising->outer_) raising->PassOver(link);
    (link.previous != nullptr ? link.previous->next : first_) = link.next;
    (link.next != nullptr ? link.next->previous : last_) = link.previous;
  }

 private:
  Link* first_ = nullptr;
  Link* last_ = nullptr;
  Raising* raising_ = nullptr;  ///< the innermost
};

}  // namespace detail

/// That a listener is connected to an event. The listener is told until this object ends, or the event does,
/// whichever comes first; both may happen while the event is being raised.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;  ///< connected to nothing
  /// Takes the link, which stands in an event's list, over.
  explicit Subscription(detail::Link& link) noexcept : link_(&link) {}
  /// The listener goes on being told, by this one; the other is connected to nothing.
  Subscription(Subscription&& other) noexcept : link_(std::exchange(other.link_, nullptr)) {}
  /// The same; what this one was connected to is told no more.
  Subscription& operator=(Subscription&& other) noexcept {
    Subscription taken(std::move(other));
    std::swap(link_, taken.link_);
    return *this;
  }
  ~Subscription() { Reset(); }

  /// The listener is told no more, also of a raising that is under way. What it holds goes with it, at the latest when
  /// it returns.
  void Reset() noexcept {
    if (link_ == nullptr) return;
    detail::Link& link = *std::exchange(link_, nullptr);
    if (link.listeners != nullptr) link.listeners->Remove(link);
    link.Release();
  }

 private:
  detail::Link* link_ = nullptr;
};

/// The subscriptions of one owner, which end with it. As its last member they end before anything that its listeners
/// use.
class Subscriptions {
 public:
  /// Keeps one more.
  void operator+=(Subscription subscription) { all_.push_back(std::move(subscription)); }
  /// Ends them all.
  void Reset() { all_.clear(); }

 private:
  std::vector<Subscription> all_;
};

}  // namespace brivane::host
