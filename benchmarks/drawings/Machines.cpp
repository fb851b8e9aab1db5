// Cross-sections of machines with a hairpin winding and V-shaped magnets.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "benchmarks/drawings/Pen.h"

namespace drawings {

namespace {

// All lengths in millimetres.
constexpr double kSlotPitch = 10;  // along the bore
constexpr double kOpening = 1;     // half the width of the slot opening
constexpr double kOpeningDepth = 1;
constexpr double kShoulderDepth = 2;
constexpr double kSlotWidth = 2.5;  // half of it
constexpr double kLayerDepth = 3;
constexpr int kLayers = 6;
constexpr double kFillet = 1;
constexpr double kYoke = 12;
constexpr double kAirGap = 0.7;
constexpr double kShaftBelow = 24;  // the shaft's radius is that much less than the rotor's

constexpr std::size_t kSlotsPerPole = 6;
constexpr std::size_t kFewestSlots = 3 * kSlotsPerPole;
constexpr std::size_t kSlotCounts[] = {36, 48, 54, 60, 72};
constexpr std::size_t kEntitiesPerSlot = 75;
constexpr double kSheetPitch = 310;

double BoreRadius(std::size_t aSlots) {
  return static_cast<double>(aSlots) * kSlotPitch / (2 * std::numbers::pi);
}

// A slot along the frame's x axis, whose origin is the machine's centre.
void AddSlot(Drawing& aDrawing, const Frame& aSlot, double aBore) {
  const double mouth = std::sqrt(aBore * aBore - kOpening * kOpening);
  const double neck = aBore + kOpeningDepth;
  const double top = neck + kShoulderDepth;
  const double end = top + kLayers * kLayerDepth;
  Arc(aDrawing, aSlot(0, 0), aBore, aSlot(mouth, -kOpening), aSlot(mouth, kOpening));
  Line(aDrawing, aSlot(neck, -kOpening), aSlot(neck, kOpening));
  for (const double side : {-1.0, 1.0}) {
    Line(aDrawing, aSlot(mouth, side * kOpening), aSlot(neck, side * kOpening));
    Line(aDrawing, aSlot(neck, side * kOpening), aSlot(top, side * kSlotWidth));
    for (int k = 0; k < kLayers; ++k) {
      Line(aDrawing, aSlot(top + k * kLayerDepth, side * kSlotWidth),
           aSlot(top + (k + 1) * kLayerDepth, side * kSlotWidth));
    }
  }
  const double corner = kSlotWidth - kFillet;
  Arc(aDrawing, aSlot(end, -corner), kFillet, aSlot(end, -kSlotWidth), aSlot(end + kFillet, -corner));
  Line(aDrawing, aSlot(end + kFillet, -corner), aSlot(end + kFillet, corner));
  Arc(aDrawing, aSlot(end, corner), kFillet, aSlot(end + kFillet, corner), aSlot(end, kSlotWidth));
  for (int k = 0; k < kLayers; ++k) {
    RoundedRectangle(aDrawing, aSlot.At(top + (k + 0.5) * kLayerDepth, 0, 0), 1.2, 2, 0.4);
  }
}

void AddStator(Drawing& aDrawing, const Frame& aMachine, std::size_t aSlots) {
  const double bore = BoreRadius(aSlots);
  const double mouth = std::sqrt(bore * bore - kOpening * kOpening);
  const auto slotFrame = [&](std::size_t k) {
    return aMachine.At(0, 0, 360.0 * static_cast<double>(k % aSlots) / static_cast<double>(aSlots));
  };
  for (std::size_t k = 0; k < aSlots; ++k) {
    AddSlot(aDrawing, slotFrame(k), bore);
    Arc(aDrawing, aMachine(0, 0), bore, slotFrame(k)(mouth, kOpening), slotFrame(k + 1)(mouth, -kOpening));
  }
  Circle(aDrawing, aMachine, bore + kOpeningDepth + kShoulderDepth + kLayers * kLayerDepth + kFillet + kYoke);
}

// A magnet with a pocket of air at each end, lengthwise along the frame's y axis.
void AddMagnet(Drawing& aDrawing, const Frame& aMagnet) {
  constexpr double kThickness = 2;  // half of it
  constexpr double kLength = 5;     // half of it
  constexpr double kPocket = 1.5;
  constexpr double kPocketEnd = 1;  // half its width, the radius of its round end
  Rectangle(aDrawing, aMagnet, kThickness, kLength);
  for (const double end : {-1.0, 1.0}) {
    const Frame cap = aMagnet.At(0, 0, end > 0 ? 0 : 180);
    const auto corner = [&](double side) { return aMagnet(side * end * kThickness, end * kLength); };
    const Point right = cap(kPocketEnd, kLength + kPocket);
    const Point left = cap(-kPocketEnd, kLength + kPocket);
    Line(aDrawing, corner(1), right);
    Arc(aDrawing, cap(0, kLength + kPocket), kPocketEnd, right, left);
    Line(aDrawing, left, corner(-1));
  }
}

// Two bows round the frame's origin, on its left, joined by round ends.
void AddBarrier(Drawing& aDrawing, const Frame& aBow, double aInner, double aOuter) {
  constexpr double kHalfSpan = 40;  // degrees
  const Frame low = aBow.At(0, 0, 180 - kHalfSpan);
  const Frame high = aBow.At(0, 0, 180 + kHalfSpan);
  Arc(aDrawing, aBow(0, 0), aInner, low(aInner, 0), high(aInner, 0));
  Arc(aDrawing, aBow(0, 0), aOuter, low(aOuter, 0), high(aOuter, 0));
  Arc(aDrawing, low((aInner + aOuter) / 2, 0), (aOuter - aInner) / 2, low(aInner, 0), low(aOuter, 0));
  Arc(aDrawing, high((aInner + aOuter) / 2, 0), (aOuter - aInner) / 2, high(aOuter, 0), high(aInner, 0));
}

void AddRotor(Drawing& aDrawing, const Frame& aMachine, std::size_t aPoles, double aRadius) {
  const double step = 360.0 / static_cast<double>(aPoles);
  const auto poleFrame = [&](std::size_t k) { return aMachine.At(0, 0, step * static_cast<double>(k % aPoles)); };
  for (std::size_t k = 0; k < aPoles; ++k) {
    const Frame pole = poleFrame(k);
    const Frame edge = pole.At(0, 0, step / 2);
    Arc(aDrawing, aMachine(0, 0), aRadius, pole(aRadius, 0), edge(aRadius, 0));
    Arc(aDrawing, aMachine(0, 0), aRadius, edge(aRadius, 0), poleFrame(k + 1)(aRadius, 0));
    AddMagnet(aDrawing, pole.At(aRadius - 9, 7, -25));
    AddMagnet(aDrawing, pole.At(aRadius - 9, -7, 25));
    AddBarrier(aDrawing, pole.At(aRadius, 0, 0), 16, 18);
    AddBarrier(aDrawing, pole.At(aRadius, 0, 0), 20, 22);
  }
  Circle(aDrawing, aMachine, aRadius - kShaftBelow);
}

void AddMachine(Drawing& aDrawing, const Frame& aMachine, std::size_t aSlots) {
  AddStator(aDrawing, aMachine, aSlots);
  AddRotor(aDrawing, aMachine, aSlots / kSlotsPerPole, BoreRadius(aSlots) - kAirGap);
}

// A whole number of poles that comes near so many entities.
std::size_t SlotsFor(std::size_t aEntities) {
  constexpr std::size_t kEntitiesPerPole = kEntitiesPerSlot * kSlotsPerPole;
  return std::max(kFewestSlots, (aEntities + kEntitiesPerPole / 2) / kEntitiesPerPole * kSlotsPerPole);
}

}  // namespace

Drawing OneMachine(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities + aEntities / 50 + 2000);
  AddMachine(drawing, Frame({7, -3}, 1.7), SlotsFor(aEntities));
  return drawing;
}

Drawing Machines(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities + 2000);
  Dice dice(1);
  const double machines = static_cast<double>(aEntities) / (54.0 * kEntitiesPerSlot);
  const auto columns = static_cast<std::size_t>(std::ceil(std::sqrt(machines)));
  for (std::size_t k = 0; k == 0 || drawing.size() + kEntitiesPerSlot * kFewestSlots / 2 < aEntities; ++k) {
    const std::size_t left = SlotsFor(aEntities - drawing.size());
    const Point centre{kSheetPitch * static_cast<double>(k % columns), kSheetPitch * static_cast<double>(k / columns)};
    AddMachine(drawing, Frame(centre, dice.Between(0, 360)), std::min(left, kSlotCounts[k % std::size(kSlotCounts)]));
  }
  return drawing;
}

}  // namespace drawings
