#pragma once

// The settings of a run: what the user asked for, and what the library was given. The library reads its settings from
// the host's store and input-data record at every use, so they are applied once, before the first call.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xsec/Drawing.h"

namespace xsec {

/// One input field of the host's store by its number.
struct FieldValue {
  std::uint16_t field = 0;
  double value = 0;
};

/// The field that holds the linear tolerance.
inline constexpr std::uint16_t kLinearToleranceField = 6525;

/// What the command line asks for.
struct SettingsRequest {
  std::optional<double> tolerance;  ///< UNITS: millimetres
  std::vector<FieldValue> fields;   ///< in the order given; the last one of a field counts
  std::uint8_t machineType = 0;
  bool prepares = true;                ///< the drawing is put so that its regions do not depend on how it lies
  std::optional<double> sliverArea{};  ///< UNITS: mm2
  bool dropsSlivers = false;
  double minimumLabelArea = 0;  ///< UNITS: mm2; regions of a smaller area have no name written into them
};

/// What a run uses.
struct Settings {
  double tolerance = 0;            ///< UNITS: millimetres
  bool toleranceGiven = false;     ///< false: it was taken from the size of the drawing
  std::vector<FieldValue> fields;  ///< every field that the library reads and every one that was asked for, ascending
  std::uint8_t machineType = 0;
  bool prepares = true;
  double sliverArea = 0;  ///< UNITS: mm2; regions below it are slivers. A square of the tolerance unless it is given
  bool dropsSlivers = false;
  double minimumLabelArea = 0;  ///< UNITS: mm2, of the picture; where labels are does not depend on it
};

/// The linear tolerance for a drawing: a millionth of the diagonal of its largest part, so that parts side by side on a
/// sheet are read as each of them alone would be. A straight gap lies between a part and the others.
/// DEGENERATE: 1e-4 mm for a drawing without size.
///
/// COST: n log n
double DefaultTolerance(const Drawing& aDrawing);

/// The least tolerance under which what meets in a drawing meets in the library: rounding moves crossings by some bits
/// of what they are reckoned with. UNITS: millimetres.
double FinestTolerance(const Drawing& aDrawing);

/// What is wrong with a tolerance below that; else empty.
std::string WarnOfFineTolerance(const Settings& aSettings, const Drawing& aDrawing);
/// And what to do about it.
std::string AdviceOnFineTolerance(const Drawing& aDrawing);

/// FIELD=VALUE as the command line spells it. Throws UsageError for anything else.
FieldValue ParseFieldValue(std::string_view aText);

/// Throws UsageError when the tolerance is given twice: neither may silently win.
void CheckSettings(const SettingsRequest& aRequest);

/// Puts the host's store and input-data record to their starting values, then sets what the request says.
Settings ApplySettings(const SettingsRequest& aRequest, const Drawing& aDrawing);

/// Has the library compare with another linear tolerance for a while.
class ToleranceScope {
 public:
  explicit ToleranceScope(double aTolerance);
  ~ToleranceScope();
  ToleranceScope(const ToleranceScope&) = delete;
  ToleranceScope& operator=(const ToleranceScope&) = delete;

 private:
  double fBefore;
};

/// What to say behind a tolerance: nothing when it was given, else what it was taken from, after a comma.
std::string ToleranceOrigin(const Settings& aSettings, const Drawing& aDrawing);

}  // namespace xsec
