#pragma once

// What the library does, as a list: each entry prepares an object, does one thing to it, and tells all that can be seen
// of it afterwards. Tests go through the list in hosts of every kind: with memory that runs out, with traps, in other
// locales, in many threads, from other compilers.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace everything {

/// Takes in what can be seen of an object.
class TFingerprint {
 public:
  virtual ~TFingerprint() = default;
  virtual void Add(double aNumber) = 0;
  virtual void Add(std::int64_t aNumber) = 0;
  virtual void Add(std::string_view aText) = 0;
};

/// A hash of all that was added; it allocates nothing. All not-a-numbers are alike.
class THash : public TFingerprint {
 public:
  void Add(double aNumber) override;
  void Add(std::int64_t aNumber) override;
  void Add(std::string_view aText) override;
  std::uint64_t Value() const { return fHash; }

 private:
  void AddByte(unsigned char aByte);

  std::uint64_t fHash = 14695981039346656037U;
};

/// All that was added as text, a line each, numbers in hexadecimal.
class TText : public TFingerprint {
 public:
  void Add(double aNumber) override;
  void Add(std::int64_t aNumber) override;
  void Add(std::string_view aText) override;
  const std::string& Text() const { return fText; }

 private:
  std::string fText;
};

/// What holds when the operation runs out of memory.
enum class TGuarantee {
  Unchanged,  ///< everything is as before
  Empty,      ///< what the operation was to build is empty; the drawing is as before or sorted
  Usable      ///< the objects can be used and filled anew
};

/// An object and the one operation on it.
class TSubject {
 public:
  virtual ~TSubject() = default;
  virtual void Operate() = 0;
  /// Tells what can be seen of the object, and what the operation answered. Allocates nothing of its own.
  virtual void Observe(TFingerprint& aFingerprint) = 0;
  /// Whether what the operation was to build is empty.
  virtual bool IsEmpty() { return false; }
  /// Brings the object back to where it was before the operation, without what that has left behind.
  virtual void Prepare() = 0;
};

struct TScenario {
  std::string name;
  TGuarantee guarantee = TGuarantee::Unchanged;
  std::function<std::unique_ptr<TSubject>()> make;  ///< the object, prepared
};

std::vector<TScenario> Scenarios();
std::vector<TScenario> ChainScenarios();
std::vector<TScenario> DetectionScenarios();
std::vector<TScenario> RegionScenarios();
/// Random drawings of every kind through the whole detection; not among the others, since they take long.
std::vector<TScenario> DrawingScenarios();

/// Prepares, operates and observes.
void Run(const TScenario& aScenario, TFingerprint& aFingerprint);

// For the lists ------------------------------------------------------------------------------------------------------

/// A subject whose state is a struct with Prepare(), Observe(TFingerprint&) and IsEmpty().
template <typename TState>
class TSubjectOf : public TSubject {
 public:
  explicit TSubjectOf(void (*aOperate)(TState&)) : fOperate(aOperate) { fState.Prepare(); }
  void Operate() override { fOperate(fState); }
  void Observe(TFingerprint& aFingerprint) override { fState.Observe(aFingerprint); }
  bool IsEmpty() override { return fState.IsEmpty(); }
  void Prepare() override { fState.Prepare(); }

 private:
  TState fState;
  void (*fOperate)(TState&);
};

template <typename TState>
TScenario On(const char* aName, TGuarantee aGuarantee, void (*aOperate)(TState&)) {
  return {aName, aGuarantee, [aOperate] { return std::make_unique<TSubjectOf<TState>>(aOperate); }};
}

}  // namespace everything
