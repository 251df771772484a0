#pragma once

#include "component/automation/Module.h"

namespace brivane::component {

/// The identity and the count of references of an object that a class factory makes, alone or as part of another one.
///
/// An object that loses its last reference while something of it still runs is told so, for that to end, and destroyed
/// when it has: at once where it was called from outside, and with the thread's next message where a message had set it
/// off, as the windows of the object are still at work then.
class Identity : private module::LiveObject {
 public:
  explicit Identity(IUnknown* outer) : inner_(*this), outer_(outer ? outer : &inner_) {}
  virtual ~Identity() = default;

  /// What the class factory hands out: it counts, and asks Find, also where the object is part of another one.
  [[nodiscard]] IUnknown& Inner() { return inner_; }
  /// The object as its users know it.
  [[nodiscard]] IUnknown& Controlling() const { return *outer_; }

  /// While one lives, the object is not destroyed.
  class Busy {
   public:
    explicit Busy(Identity& object) : object_(object) { ++object_.busy_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { object_.Return(); }

   private:
    Identity& object_;
  };

 protected:
  /// The interface with that identity, uncounted, or nothing. Not asked for IUnknown.
  [[nodiscard]] virtual IUnknown* Find(REFIID iid) = 0;
  /// Whether something of the object runs that no call from outside set off.
  [[nodiscard]] virtual bool IsAtWork() const { return false; }
  /// Nobody holds the object any more, but something of it runs: that is to end, and then to say so by Rested. Once.
  virtual void Abandoned() {}
  void Rested();

 private:
  class InnerUnknown final : public IUnknown {
   public:
    explicit InnerUnknown(Identity& object) : object_(object) {}
    STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++object_.count_; }
    STDMETHODIMP_(ULONG) Release() override;

   private:
    Identity& object_;
  };

  /// A call from outside is done: whoever called may have nothing after it but the end of his thread.
  void Return();
  void Unreferenced();
  void Destroy();

  InnerUnknown inner_;
  IUnknown* outer_;
  ULONG count_ = 1;
  unsigned busy_ = 0;
  bool abandoned_ = false;
};

/// The three methods of IUnknown for an object's interfaces: they are those of its identity.
#define BRIVANE_IDENTITY()                                                        \
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {                  \
    return this->Controlling().QueryInterface(iid, out);                          \
  }                                                                               \
  STDMETHODIMP_(ULONG) AddRef() override { return this->Controlling().AddRef(); } \
  STDMETHODIMP_(ULONG) Release() override { return this->Controlling().Release(); }

}  // namespace brivane::component
