#include "xsec/Settings.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>

#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"
#include "xsec/Errors.h"
#include "xsec/SplitAtGaps.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

namespace {

using Maindataenum::TInputFields;
using enum Maindataenum::TInputFields;

constexpr double kTolerancePerDiagonal = 1e-6;
constexpr double kFinestPerDiagonal = 1e-11;    // below, crossings were seen to be missed
constexpr double kFinestPerCoordinate = 1e-15;  // some bits of it
constexpr double kToleranceWithoutSize = 1e-4;  // millimetres
constexpr double kTolerancesBetweenParts = 2;   // of the drawing as a whole

constexpr TInputFields kFieldsOfTheLibrary[] = {
    ifSlotDuplications, ifPoleDuplications, ifBarDuplications, ifLinearTolerance,   ifSnappingMode,
    ifAngleTolerance,   ifMinimumLabelArea, ifArcResolution,   ifUniqueRegionNames,
};

/// The number that all of `text` spells, if it does.
template <typename Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::vector<FieldValue> FieldsInUse(const std::vector<FieldValue>& requested) {
  std::map<std::uint16_t, double> values;
  const auto take = [&](std::uint16_t field) {
    values[field] = Kelvaralinks::dataStore.GetValue(static_cast<TInputFields>(field));
  };
  for (const TInputFields field : kFieldsOfTheLibrary) take(static_cast<std::uint16_t>(field));
  for (const FieldValue& asked : requested) take(asked.field);
  std::vector<FieldValue> fields;
  for (const auto& [field, value] : values) fields.push_back({field, value});
  return fields;
}

/// Of the drawing itself when it is one part.
double DiagonalOfLargestPart(const Drawing& drawing) {
  std::vector<Extents> boxes;
  for (const DrawingEntity& entity : drawing.entities) boxes.push_back(Bounds(Travel(entity.geometry, true)));
  const double whole = Diagonal(drawing.extents);
  const double gap = kTolerancesBetweenParts * kTolerancePerDiagonal * whole;
  const std::vector<BoxGroup> parts = SplitAtGaps(boxes, gap);
  if (parts.size() <= 1) return whole;
  double largest = 0;
  for (const BoxGroup& part : parts) largest = std::max(largest, Diagonal(BoxOf(part, boxes)));
  return largest;
}

}  // namespace

double DefaultTolerance(const Drawing& aDrawing) {
  const double diagonal = DiagonalOfLargestPart(aDrawing);
  if (std::isfinite(diagonal) && diagonal > 0) return kTolerancePerDiagonal * diagonal;
  return kToleranceWithoutSize;
}

double FinestTolerance(const Drawing& aDrawing) {
  const auto& [minX, minY, maxX, maxY] = aDrawing.extents;
  const double furthest = std::max({std::abs(minX), std::abs(minY), std::abs(maxX), std::abs(maxY)});
  return kFinestPerDiagonal * Diagonal(aDrawing.extents) + kFinestPerCoordinate * furthest;
}

std::string WarnOfFineTolerance(const Settings& aSettings, const Drawing& aDrawing) {
  if (aSettings.tolerance >= FinestTolerance(aDrawing)) return "";
  return fmt::format(
      "a tolerance of {:.6g} mm is less than rounding does to coordinates of this size, and what meets may not be "
      "found to meet",
      aSettings.tolerance);
}

std::string AdviceOnFineTolerance(const Drawing& aDrawing) {
  return fmt::format("give --tol {:.2g} or more", FinestTolerance(aDrawing));
}

FieldValue ParseFieldValue(std::string_view aText) {
  const std::size_t equals = aText.find('=');
  if (equals != std::string_view::npos) {
    const auto field = WholeNumber<std::uint16_t>(aText.substr(0, equals));
    const auto value = WholeNumber<double>(aText.substr(equals + 1));
    if (field && value && std::isfinite(*value)) return {*field, *value};
  }
  throw UsageError(
      fmt::format("--setting {}: expected FIELD=VALUE, a field number from 0 to 65535 and a number", aText));
}

void CheckSettings(const SettingsRequest& aRequest) {
  for (const FieldValue& asked : aRequest.fields) {
    if (asked.field == kLinearToleranceField && aRequest.tolerance) {
      throw UsageError(fmt::format("--tol {} and --setting {}={} both set the linear tolerance; give one of them",
                                   *aRequest.tolerance, asked.field, asked.value));
    }
  }
}

Settings ApplySettings(const SettingsRequest& aRequest, const Drawing& aDrawing) {
  auto& store = Kelvaralinks::dataStore;
  store.Reset();
  store.SetValue(ifLinearTolerance, aRequest.tolerance ? *aRequest.tolerance : DefaultTolerance(aDrawing));
  bool given = aRequest.tolerance.has_value();
  for (const FieldValue& asked : aRequest.fields) {
    store.SetValue(static_cast<TInputFields>(asked.field), asked.value);
    given = given || static_cast<TInputFields>(asked.field) == ifLinearTolerance;
  }
  Kelvaralinks::InputData.MachineType = aRequest.machineType;
  const double tolerance = store.GetValue(ifLinearTolerance);
  return {tolerance,
          given,
          FieldsInUse(aRequest.fields),
          aRequest.machineType,
          aRequest.prepares,
          aRequest.sliverArea.value_or(tolerance * tolerance),
          aRequest.dropsSlivers,
          aRequest.minimumLabelArea};
}

ToleranceScope::ToleranceScope(double aTolerance) : fBefore(Kelvaralinks::dataStore.GetValue(ifLinearTolerance)) {
  Kelvaralinks::dataStore.SetValue(ifLinearTolerance, aTolerance);
}

ToleranceScope::~ToleranceScope() {
  Kelvaralinks::dataStore.SetValue(ifLinearTolerance, fBefore);
}

std::string ToleranceOrigin(const Settings& aSettings, const Drawing& aDrawing) {
  if (aSettings.toleranceGiven) return "";
  const bool isOfPart = aSettings.tolerance < kTolerancePerDiagonal * Diagonal(aDrawing.extents);
  return fmt::format(", a millionth of the {}", isOfPart ? "diagonal of its largest part" : "drawing's diagonal");
}

}  // namespace xsec
