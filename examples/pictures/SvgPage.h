#pragma once

// A picture of a drawing: shapes in drawing units with y up, and a column of notes to the right of them. What is drawn
// is written with a fixed number of digits, so that the same geometry gives the same file everywhere.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "GeometryEngine/GeometryEngine.h"

namespace pictures {

using GeometryEngine::TCoordinateArray;
using GeometryEngine::TEntityCoordinate;

inline constexpr const char* kInk = "#1f2933";
inline constexpr const char* kGrey = "#9aa5b1";
inline constexpr const char* kPale = "#d3dae2";
inline constexpr const char* kBlue = "#2563b0";
inline constexpr const char* kOrange = "#d9660a";
inline constexpr const char* kRed = "#c81e3c";
inline constexpr const char* kGreen = "#1d8348";

/// The number with so many digits behind the point; never "-0.00".
inline std::string Fixed(double aNumber, int aDigits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", aDigits, aNumber);
  const std::string_view sign_less = std::string_view(text).substr(text[0] == '-' ? 1 : 0);
  return std::string(sign_less.find_first_not_of("0.") == std::string_view::npos ? sign_less : std::string_view(text));
}

inline constexpr const char* kColours[] = {"#2563b0", "#d9660a", "#1d8348", "#8e44ad", "#b7950b",
                                           "#0e8a94", "#c2185b", "#5d6d7e", "#7b4b2a", "#4a5fd0"};

inline std::string ColourOf(std::size_t aNumber) {
  return kColours[aNumber % std::size(kColours)];
}

inline std::string Fill(const std::string& aColour, double aOpacity) {
  return "fill=\"" + aColour + "\" fill-opacity=\"" + Fixed(aOpacity, 2) + "\"";
}

/// The part of the plane that a picture shows, and how large. UNITS: drawing units; pixels a drawing unit.
struct TWindow {
  double fLeft = 0;
  double fBottom = 0;
  double fRight = 0;
  double fTop = 0;
  double fScale = 1;
};

class TSvgPage {
 public:
  TSvgPage(std::string_view aTitle, const TWindow& aWindow) : fWindow(aWindow) {
    fWidth = (aWindow.fRight - aWindow.fLeft) * aWindow.fScale + kNoteWidth;
    fHeight = (aWindow.fTop - aWindow.fBottom) * aWindow.fScale + kTitleHeight;
    fNoteY = kTitleHeight + 26;
    fBody += "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + Fixed(fWidth, 0) + " " + Fixed(fHeight, 0) +
             "\" font-family=\"DejaVu Sans, Verdana, sans-serif\" font-size=\"15\">\n"
             "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
    WriteText(24, 34, aTitle, "fill=\"#1f2933\" font-size=\"21\" font-weight=\"bold\"");
  }

  // Shapes in drawing units; the style is a list of SVG attributes --------------------------------------------------

  void Line(const TCoordinateArray& aPoints, const std::string& aStyle) {
    fBody += "<path d=\"" + GetPath(aPoints) + "\" fill=\"none\" stroke-linecap=\"round\" " + aStyle + "/>\n";
  }

  /// A line that ends in an arrow head.
  void Arrow(const TCoordinateArray& aPoints, const std::string& aColour, double aWidth) {
    Line(aPoints, Stroke(aColour, aWidth));
    const TEntityCoordinate tip = aPoints.back();
    const TEntityCoordinate back = GetHeadBack(aPoints);
    const TEntityCoordinate side{-0.5 * (tip.y - back.y), 0.5 * (tip.x - back.x)};
    Area({tip, back + side, back - side}, "fill=\"" + aColour + "\"");
  }

  void Area(const TCoordinateArray& aOutline, const std::string& aStyle) {
    fBody += "<path d=\"" + GetPath(aOutline) + "Z\" " + aStyle + "/>\n";
  }

  void Dot(const TEntityCoordinate& aPoint, double aPixels, const std::string& aStyle) {
    fBody += "<circle " + GetPlace(aPoint, "cx", "cy") + " r=\"" + Fixed(aPixels, 1) + "\" " + aStyle + "/>\n";
  }

  void Cross(const TEntityCoordinate& aPoint, double aPixels, const std::string& aColour) {
    const double arm = aPixels / fWindow.fScale;
    Line({{aPoint.x - arm, aPoint.y - arm}, {aPoint.x + arm, aPoint.y + arm}}, Stroke(aColour, 2.5));
    Line({{aPoint.x - arm, aPoint.y + arm}, {aPoint.x + arm, aPoint.y - arm}}, Stroke(aColour, 2.5));
  }

  /// A number in a disc.
  void Tag(const TEntityCoordinate& aPoint, std::size_t aNumber, const std::string& aColour) {
    Dot(aPoint, 10, "fill=\"" + aColour + "\" stroke=\"#ffffff\" stroke-width=\"1.5\"");
    const TEntityCoordinate base{aPoint.x, aPoint.y - 4.3 / fWindow.fScale};
    Text(base, std::to_string(aNumber), "fill=\"#ffffff\" font-size=\"12\" font-weight=\"bold\"");
  }

  /// Text centred above the point.
  void Text(const TEntityCoordinate& aPoint, std::string_view aText, const std::string& aStyle) {
    WriteText(GetX(aPoint), GetY(aPoint), aText, "text-anchor=\"middle\" " + aStyle);
  }

  static std::string Stroke(const std::string& aColour, double aWidth) {
    return "stroke=\"" + aColour + "\" stroke-width=\"" + Fixed(aWidth, 1) + "\"";
  }

  // The column of notes ---------------------------------------------------------------------------------------------

  /// The next line of the column, behind a swatch of the colour; without one when there is no colour.
  void Note(const std::string& aColour, std::string_view aText) {
    const double x = fWidth - kNoteWidth + 12;
    if (!aColour.empty()) {
      fBody += "<rect x=\"" + Fixed(x, 2) + "\" y=\"" + Fixed(fNoteY - 12, 2) +
               "\" width=\"14\" height=\"14\" rx=\"3\" fill=\"" + aColour + "\"/>\n";
    }
    WriteText(aColour.empty() ? x : x + 24, fNoteY, aText, "fill=\"#1f2933\"");
    fNoteY += 25;
  }

  void Gap() { fNoteY += 12; }

  /// False when the file can't be written.
  bool Write(const std::string& aPath) const {
    std::ofstream file(aPath, std::ios::binary);
    file << fBody << "</svg>\n";
    return static_cast<bool>(file.flush());
  }

 private:
  static constexpr double kNoteWidth = 370;   // pixels
  static constexpr double kTitleHeight = 50;  // pixels
  static constexpr double kArrowHead = 9;     // pixels from tip to back

  double GetX(const TEntityCoordinate& aPoint) const { return (aPoint.x - fWindow.fLeft) * fWindow.fScale; }
  double GetY(const TEntityCoordinate& aPoint) const {
    return kTitleHeight + (fWindow.fTop - aPoint.y) * fWindow.fScale;
  }

  std::string GetPlace(const TEntityCoordinate& aPoint, const char* aX, const char* aY) const {
    return std::string(aX) + "=\"" + Fixed(GetX(aPoint), 2) + "\" " + aY + "=\"" + Fixed(GetY(aPoint), 2) + "\"";
  }

  std::string GetPath(const TCoordinateArray& aPoints) const {
    std::string path;
    for (const TEntityCoordinate& point : aPoints) {
      path += (path.empty() ? "M" : "L") + Fixed(GetX(point), 2) + " " + Fixed(GetY(point), 2);
    }
    return path;
  }

  TEntityCoordinate GetHeadBack(const TCoordinateArray& aPoints) const {
    const TEntityCoordinate tip = aPoints.back();
    const TEntityCoordinate last = tip - aPoints[aPoints.size() - 2];
    const double length = GeometryEngine::XY_To_RT(last.x, last.y).r;
    return tip - kArrowHead / fWindow.fScale / length * last;
  }

  void WriteText(double aX, double aY, std::string_view aText, const std::string& aStyle) {
    fBody += "<text x=\"" + Fixed(aX, 2) + "\" y=\"" + Fixed(aY, 2) + "\" " + aStyle + ">" + std::string(aText) +
             "</text>\n";
  }

  TWindow fWindow;
  double fWidth = 0;
  double fHeight = 0;
  double fNoteY = 0;
  std::string fBody;
};

/// The pictures of one run, in a folder or nowhere.
class TAlbum {
 public:
  /// DEGENERATE: an empty folder takes nothing.
  explicit TAlbum(std::string aFolder) : fFolder(std::move(aFolder)) {}

  void Add(const TSvgPage& aPage, const std::string& aName) {
    if (!fFolder.empty()) fComplete = aPage.Write(fFolder + "/region_detection_" + aName + ".svg") && fComplete;
  }
  bool IsComplete() const { return fComplete; }

 private:
  std::string fFolder;
  bool fComplete = true;
};

}  // namespace pictures
