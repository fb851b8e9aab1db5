#pragma once

// What the program says while it runs: to standard output the results, to standard error everything else.

#include <string>
#include <string_view>

namespace xsec {

/// One line on a terminal that says what goes on; it makes way for everything else. Nothing when standard error is no
/// terminal, or one that understands no control sequences.
class Progress {
 public:
  Progress();
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Show(std::string_view aDoing) const;
  void Clear() const;

 private:
  bool fShown;
};

/// A line to standard error. On a terminal a warning is coloured, unless NO_COLOR is set.
void Tell(std::string_view aLine);

/// Throws OutputError when not all of it could be written.
void PrintToStandardOutput(const std::string& aText);

}  // namespace xsec
