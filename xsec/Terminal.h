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

/// Takes the places of standard streams that are closed, so that no file of the run's takes them and is written into.
/// They can be written to as little as before.
void OccupyClosedStreams();

/// A line to standard error. On a terminal a warning is coloured, unless NO_COLOR is set. Where it can't be written,
/// the work goes on without it.
void Tell(std::string_view aLine);

/// Throws OutputError when not all of it could be written.
void PrintToStandardOutput(const std::string& aText);

}  // namespace xsec
