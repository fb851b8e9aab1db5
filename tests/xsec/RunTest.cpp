// The program as a shell sees it: exit codes, standard output and error, and the files it leaves.

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <sstream>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "xsec/Json.h"

namespace {

#ifdef __SANITIZE_THREAD__  // which keeps a signal from a loop that calls nothing
constexpr bool kSignalsReachLoops = false;
#else
constexpr bool kSignalsReachLoops = true;
#endif

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

std::string DxfOf(const std::string& entities) {
  return "0\nSECTION\n2\nHEADER\n9\n$INSUNITS\n70\n4\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities +
         "0\nENDSEC\n0\nEOF\n";
}

/// With a block "b".
std::string DxfOf(const std::string& block, const std::string& entities) {
  return "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nb\n10\n0\n20\n0\n" + block + "0\nENDBLK\n0\nENDSEC\n" + DxfOf(entities);
}

std::string Line(double x1, double y1, double x2, double y2) {
  std::ostringstream text;
  text << "0\nLINE\n8\nPlate\n10\n" << x1 << "\n20\n" << y1 << "\n11\n" << x2 << "\n21\n" << y2 << "\n";
  return text.str();
}

std::string Square(double x, double y, double side) {
  return Line(x, y, x + side, y) + Line(x + side, y, x + side, y + side) + Line(x + side, y + side, x, y + side) +
         Line(x, y + side, x, y);
}

std::string Grid(int n) {
  std::string lines;
  for (int i = 0; i <= n; ++i) lines += Line(i, 0, i, n) + Line(0, i, n, i);
  return lines;
}

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder of its own for each test, with a drawing in it.
class Xsec : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "xsec-XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    fFolder = name;
    fs::create_directory(fFolder / "in");
    fs::create_directory(fFolder / "out");
  }
  void TearDown() override { fs::remove_all(fFolder); }

  std::string Drawing(const std::string& text) { return Drawing("drawing.dxf", text); }
  std::string Drawing(const std::string& name, const std::string& text) {
    const fs::path path = fFolder / "in" / name;
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
  }

  std::string Out(const std::string& name) const { return (fFolder / "out" / name).string(); }

  /// Runs the program by the shell and keeps what it prints.
  int RunXsec(const std::string& arguments, const std::string& before = "") {
    const std::string command = before + " '" XSEC_PROGRAM "' " + arguments + " >'" + (fFolder / "stdout").string() +
                                "' 2>'" + (fFolder / "stderr").string() + "'";
    const int status = std::system(command.c_str());
    fStdout = ReadFile(fFolder / "stdout");
    fStderr = ReadFile(fFolder / "stderr");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::vector<std::string> FilesWritten() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(fFolder / "out")) names.push_back(entry.path().filename().string());
    return names;
  }

  fs::path fFolder;
  std::string fStdout;
  std::string fStderr;
};

TEST_F(Xsec, WritesWhatIsAskedForAndPrintsTheTable) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + Square(2, 2, 3)));
  EXPECT_EQ(RunXsec("regions -o " + Out("a.svg") + " " + drawing + " -o " + Out("b.JSON")), 0) << fStderr;
  EXPECT_THAT(FilesWritten(), UnorderedElementsAre("a.svg", "b.JSON"));
  EXPECT_THAT(ReadFile(Out("a.svg")), StartsWith("<svg "));
  EXPECT_EQ(xsec::ParsedJson(ReadFile(Out("b.JSON")))["regions"].size(), 2U);
  EXPECT_THAT(fStdout, HasSubstr("2 regions, net area 100 mm2\n"));
  EXPECT_THAT(fStderr, HasSubstr("linear tolerance 1.41421e-05 mm"));
}

TEST_F(Xsec, FilesThatAreReadAreNotWrittenOver) {
  const std::string text = DxfOf(Square(0, 0, 10));
  const std::string drawing = Drawing(text);
  fs::create_symlink(drawing, Out("link.dxf"));
  for (const std::string command : {"regions", "check", "transform --rotate 90"}) {
    for (const std::string& output : {drawing, Out("../in/drawing.dxf"), Out("link.dxf")}) {
      EXPECT_EQ(RunXsec(command + " " + drawing + " -o " + output), 2);
      EXPECT_THAT(fStderr, HasSubstr("-o " + output + ": this file is read; name another one"));
    }
  }
  const std::string rules = Drawing("rules.json", "{\"rules\": []}");
  EXPECT_EQ(RunXsec("regions " + drawing + " --rules " + rules + " -o " + rules), 2);
  EXPECT_EQ(ReadFile(drawing), text);
  EXPECT_EQ(ReadFile(rules), "{\"rules\": []}");
}

TEST_F(Xsec, StandardErrorThatTakesNothingChangesNothingElse) {
  const std::string arguments = "regions " + Drawing(DxfOf(Square(0, 0, 10))) + " -o " + Out("a.json");
  EXPECT_EQ(RunXsec(arguments), 0);
  const std::string table = fStdout;
  const std::string json = ReadFile(Out("a.json"));
  for (const char* errors : {"/dev/full", "&-"}) {
    EXPECT_EQ(std::system(("'" XSEC_PROGRAM "' " + arguments + " >" + Out("table") + " 2>" + errors).c_str()), 0);
    EXPECT_EQ(ReadFile(Out("table")), table);
    EXPECT_EQ(ReadFile(Out("a.json")), json);
  }
}

TEST_F(Xsec, StandardOutputThatTakesNothingIsTold) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10)));
  for (const char* output : {"/dev/full", "&-"}) {
    const std::string told = Out("told");
    const int status =
        std::system(("'" XSEC_PROGRAM "' regions " + drawing + " >" + output + " 2>" + told + " <&-").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 4);
    EXPECT_THAT(ReadFile(told), HasSubstr("xsec: standard output: "));
  }
}

TEST_F(Xsec, FolderThatIsGoneTakesNoOutput) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10)));
  EXPECT_EQ(RunXsec("regions " + drawing + " -o a.svg", "cd " + Out("") + "; rmdir " + Out("") + ";"), 4);
  EXPECT_THAT(fStderr, HasSubstr("a.svg: its folder does not exist"));
  fs::create_directory(fFolder / "out");
}

TEST_F(Xsec, CommandThatThereIsNotIsToldWithThoseThatThereAre) {
  EXPECT_EQ(RunXsec("region a.dxf"), 2);
  EXPECT_THAT(fStderr, HasSubstr("xsec: region: unknown command; known are "));
  EXPECT_THAT(fStderr, HasSubstr("regions"));
  EXPECT_EQ(RunXsec("--tol 1 regions a.dxf"), 2);
  EXPECT_THAT(fStderr, HasSubstr("xsec: --tol: a command has to come first; known are "));
  EXPECT_EQ(RunXsec(""), 2);
  EXPECT_THAT(fStderr, HasSubstr("xsec: no command is given; known are "));
}

TEST_F(Xsec, ReplacesAFormerResultAndKeepsALinkALink) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10)));
  std::ofstream(Out("real.json")) << "old";
  fs::create_symlink("real.json", Out("link.json"));
  EXPECT_EQ(RunXsec("regions " + drawing + " -o " + Out("link.json")), 0) << fStderr;
  EXPECT_TRUE(fs::is_symlink(Out("link.json")));
  EXPECT_EQ(xsec::ParsedJson(ReadFile(Out("real.json")))["regions"].size(), 1U);
  EXPECT_THAT(FilesWritten(), UnorderedElementsAre("real.json", "link.json"));
}

TEST_F(Xsec, HonoursUnitsToleranceAndSettings) {
  const std::string drawing = Drawing(DxfOf(Line(0, 0, 1, 0) + Line(1, 0, 1, 1) + Line(1, 1, 0.003, 0)));
  EXPECT_EQ(RunXsec("regions " + drawing + " --units m --tol 5 --setting 6529=7 --machine-type 4 -o " + Out("a.json")),
            0)
      << fStderr;
  const auto json = xsec::ParsedJson(ReadFile(Out("a.json")));
  EXPECT_EQ(json["drawing"]["units"]["source"], "--units");
  EXPECT_EQ(json["drawing"]["extents"]["maxX"], 1000);
  EXPECT_EQ(json["settings"]["fields"]["6529"], 7);
  EXPECT_EQ(json["settings"]["machineType"], 4);
  EXPECT_EQ(json["regions"].size(), 1U);
}

TEST_F(Xsec, GapAboveTheDefaultToleranceIsNoClosedRegionButIsStillDrawn) {
  const std::string drawing = Drawing(DxfOf(Line(0, 0, 1, 0) + Line(1, 0, 1, 1) + Line(1, 1, 0.003, 0.001)));
  EXPECT_EQ(RunXsec("regions " + drawing + " -o " + Out("a.svg")), 5);
  EXPECT_THAT(fStderr, HasSubstr("no closed region found"));
  EXPECT_THAT(ReadFile(Out("a.svg")), HasSubstr("id=\"open\""));
}

// From denormals to where squares of coordinates are infinite; and an arc of a radius as large.
TEST_F(Xsec, CoordinatesOfAnySizeEndInAnAnswer) {
  const std::string bulge = "0\nLWPOLYLINE\n8\nPlate\n10\n0\n20\n0\n42\n1e150\n10\n4\n20\n3\n";
  for (const double size : {1e-320, 1e-150, 1e-9, 1e9, 1e150, 1e300}) {
    const std::string drawing = Drawing(DxfOf(Square(0, 0, size) + Line(-size, 0, 2 * size, size) + bulge));
    const int code = RunXsec("regions " + drawing + " -o " + Out("a.json") + " -o " + Out("a.svg"));
    EXPECT_TRUE(code == 0 || code == 5) << size << ": " << code << fStderr;
  }
}

TEST_F(Xsec, EmptyDrawingHasNoClosedRegion) {
  EXPECT_EQ(RunXsec("regions " + Drawing(DxfOf(""))), 5);
}

TEST_F(Xsec, WrongUsageIsToldBeforeAnythingIsRead) {
  for (const std::string arguments :
       {"", "nonsense", "regions", "regions missing.dxf -o a.pdf", "regions missing.dxf -o a",
        "regions missing.dxf -o a.svg -o ./a.svg", "regions missing.dxf -o \"\"", "regions missing.dxf --tol 0",
        "regions missing.dxf --tol -1", "regions missing.dxf --tol nan", "regions missing.dxf --tol inf",
        "regions missing.dxf --tol x", "regions missing.dxf --units furlongs-ish", "regions missing.dxf --setting 6525",
        "regions missing.dxf --setting a=1", "regions missing.dxf --machine-type 256",
        "regions missing.dxf --machine-type -1", "regions missing.dxf --unknown", "regions missing.dxf extra.dxf"}) {
    EXPECT_EQ(RunXsec(arguments), 2) << arguments;
    EXPECT_THAT(fStderr, StartsWith("xsec: ")) << arguments;
    EXPECT_THAT(fStdout, IsEmpty()) << arguments;
  }
}

TEST_F(Xsec, UnreadableDrawingIsToldWithItsLineAndNothingIsWritten) {
  EXPECT_EQ(RunXsec("regions " + (fFolder / "missing.dxf").string() + " -o " + Out("a.svg")), 3);
  const std::string drawing = Drawing(DxfOf("0\nLINE\n8\nPlate\n10\nnot a number\n"));
  EXPECT_EQ(RunXsec("regions " + drawing + " -o " + Out("a.svg")), 3);
  EXPECT_THAT(fStderr, HasSubstr("drawing.dxf:20: "));
  EXPECT_THAT(FilesWritten(), IsEmpty());
  EXPECT_THAT(fStdout, IsEmpty());
}

TEST_F(Xsec, OutputThatCannotBeMadeIsToldBeforeTheDrawingIsRead) {
  EXPECT_EQ(RunXsec("regions missing.dxf -o " + Out("no/such/folder/a.svg")), 4);
  fs::create_directory(Out("folder.svg"));
  EXPECT_EQ(RunXsec("regions missing.dxf -o " + Out("folder.svg")), 4);
  EXPECT_THAT(fStderr, HasSubstr("is a folder"));
}

TEST_F(Xsec, FileThatCannotBeWrittenToItsEndLeavesNothingBehind) {
  const std::string drawing = Drawing(DxfOf(Grid(8)));
  std::ofstream(Out("b.json")) << "old";
  const std::string limit = "trap '' XFSZ; ulimit -f 1;";
  EXPECT_EQ(RunXsec("regions " + drawing + " -o " + Out("a.svg") + " -o " + Out("b.json"), limit), 4);
  EXPECT_THAT(FilesWritten(), ElementsAre("b.json"));
  EXPECT_EQ(ReadFile(Out("b.json")), "old");
}

TEST_F(Xsec, FullStandardOutputIsAnOutputNotWritten) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10)));
  const int status = std::system(("'" XSEC_PROGRAM "' regions " + drawing + " >/dev/full 2>/dev/null").c_str());
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 4);
}

TEST_F(Xsec, CheckNamesTheGapItsPlaceAndTheToleranceThatClosesIt) {
  const std::string drawing =
      Drawing(DxfOf(Line(0, 0, 100, 0) + Line(100, 0, 100, 50) + Line(100, 50, 0, 50) + Line(0, 50, 0, 0.003)));
  EXPECT_EQ(RunXsec("check " + drawing), 1) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("open ends: 2\n"));
  EXPECT_THAT(fStdout,
              HasSubstr("(0, 0.003), LINE on layer \"Plate\", line 52 of the file; its chain touches nothing"));
  EXPECT_THAT(fStdout, HasSubstr("(0, 0.003) to the end (0, 0), gap 0.003 mm, meet at a tolerance above 0.003 mm"));
  EXPECT_THAT(fStdout, HasSubstr("--tol 0.003003 closes 5000 mm2"));
  EXPECT_EQ(RunXsec("check " + drawing + " --tol 0.003003"), 0) << fStdout;
  EXPECT_THAT(fStdout, HasSubstr("nothing found"));
}

TEST_F(Xsec, CheckAsJsonHoldsWhatTheTextSays) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + Line(2, 0, 5, 0) + Line(4, 4, 4, 6)));
  EXPECT_EQ(RunXsec("check --json " + drawing + " -o " + Out("a.svg")), 1) << fStderr;
  const auto json = xsec::ParsedJson(fStdout);
  EXPECT_TRUE(json["findings"]);
  EXPECT_EQ(json["openEnds"].size(), 2U);
  EXPECT_FALSE(json["openEnds"][0]["touches"]);
  EXPECT_EQ(json["faults"][0]["kind"], "overlap");
  EXPECT_EQ(json["faults"][0]["amount"], 3);
  EXPECT_GE(json["ladder"].size(), 4U);
  EXPECT_THAT(ReadFile(Out("a.svg")), HasSubstr("<g id=\"marks\""));
  EXPECT_THAT(ReadFile(Out("a.svg")), HasSubstr(">open ends: 2</text>"));
  EXPECT_THAT(ReadFile(Out("a.svg")), HasSubstr(">doubled, or drawn off one circle: 2</text>"));
}

TEST_F(Xsec, CheckOfAWholeDrawingFindsNothing) {
  EXPECT_EQ(RunXsec("check " + Drawing(DxfOf(Square(0, 0, 10) + Square(2, 2, 3)))), 0) << fStdout;
  EXPECT_THAT(fStdout, HasSubstr("nothing found"));
}

TEST_F(Xsec, InfoCountsByTypeLayerAndBlock) {
  EXPECT_EQ(RunXsec("info " + Drawing(DxfOf(Square(0, 0, 10) + "0\nHATCH\n8\nNotes\n"))), 0) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("unit: mm, 1 mm (file)"));
  EXPECT_THAT(fStdout, HasSubstr("x 0 to 10, y 0 to 10; 10 x 10 mm"));
  EXPECT_THAT(fStdout, HasSubstr("  Plate                           4"));
  EXPECT_THAT(fStdout, HasSubstr("skipped: 1 HATCH on layer \"Notes\": this type is not read"));
}

TEST_F(Xsec, ToleranceGivenTwiceIsWrongUsage) {
  EXPECT_EQ(RunXsec("regions missing.dxf --tol 0.1 --setting 6525=0.2"), 2);
  EXPECT_THAT(fStderr, HasSubstr("--tol 0.1 and --setting 6525=0.2 both set the linear tolerance"));
}

TEST_F(Xsec, SliverIsReportedAndOnRequestDropped) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + Line(0, 5, 10, 5) + Line(0, 5.002, 10, 5.002)));
  EXPECT_EQ(RunXsec("regions " + drawing + " --sliver-area 0.1 -o " + Out("a.json")), 0);
  EXPECT_THAT(fStderr, HasSubstr("slivers"));
  EXPECT_EQ(xsec::ParsedJson(ReadFile(Out("a.json")))["regions"].size(), 3U);
  EXPECT_EQ(RunXsec("regions " + drawing + " --sliver-area 0.1 --drop-slivers -o " + Out("a.json")), 0);
  const auto json = xsec::ParsedJson(ReadFile(Out("a.json")));
  EXPECT_EQ(json["regions"].size(), 2U);
  EXPECT_NEAR(json["totalArea"].get<double>(), 100, 1e-9);
  EXPECT_EQ(json["diagnostics"]["cures"][0]["kind"], "sliver");
}

TEST_F(Xsec, EllipseIsMadeIntoArcsAsCloseAsIsAskedFor) {
  const std::string drawing = Drawing(DxfOf("0\nELLIPSE\n8\nPlate\n11\n30\n40\n0.5\n"));
  const auto outlineAt = [&](const std::string& options) {
    EXPECT_EQ(RunXsec("regions " + drawing + options + " -o " + Out("a.json")), 0) << fStderr;
    const auto json = xsec::ParsedJson(ReadFile(Out("a.json")));
    EXPECT_EQ(json["diagnostics"]["flattened"]["ELLIPSE"], 1);
    EXPECT_NEAR(json["totalArea"].get<double>(), 450 * std::numbers::pi, 1);
    return json["regions"][0]["outline"].size();
  };
  const std::size_t coarse = outlineAt(" --flatten 0.1");
  EXPECT_LT(coarse, outlineAt(""));
  EXPECT_LT(outlineAt(""), outlineAt(" --flatten 0.0001"));
  EXPECT_THAT(fStderr, HasSubstr("1 ELLIPSE turned into lines and arcs"));
  EXPECT_EQ(RunXsec("regions " + drawing + " --flatten 0"), 2);
  EXPECT_THAT(fStderr, HasSubstr("--flatten 0: expected a length in millimetres above 0"));
}

TEST_F(Xsec, StrictRefusesWhatIsNotReadUnlessItsLayerIsLeftOut) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + "0\nHATCH\n8\nNotes\n"));
  EXPECT_EQ(RunXsec("regions " + drawing), 0);
  EXPECT_THAT(fStderr, HasSubstr("skipped 1 HATCH on layer \"Notes\": this type is not read; first on line 64"));
  EXPECT_EQ(RunXsec("regions --strict " + drawing), 3);
  EXPECT_THAT(fStderr, HasSubstr("not everything is read: 1 HATCH on layer \"Notes\""));
  EXPECT_EQ(RunXsec("regions --strict --layer Plate " + drawing), 0) << fStderr;
}

TEST_F(Xsec, LayersAreTakenAndLeftOutByPattern) {
  std::string hole = Square(2, 2, 3);
  for (auto at = hole.find("Plate"); at != std::string::npos; at = hole.find("Plate")) hole.replace(at, 5, "Hole");
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + hole));
  EXPECT_EQ(RunXsec("regions --layer 'pl*' " + drawing), 0);
  EXPECT_THAT(fStdout, HasSubstr("1 region, net area 100 mm2"));
  EXPECT_EQ(RunXsec("regions --exclude-layer Plate " + drawing), 0);
  EXPECT_THAT(fStdout, HasSubstr("1 region, net area 9 mm2"));
  EXPECT_EQ(RunXsec("regions --exclude-layer Slot " + drawing), 3);
  EXPECT_THAT(fStderr, HasSubstr("its layers are Hole, Plate"));
}

TEST_F(Xsec, OriginTurnAndMinimumAreasShowInTheResult) {
  const std::string drawing = Drawing(DxfOf(Square(10, 10, 10) + Square(12, 12, 3)));
  EXPECT_EQ(RunXsec("regions --origin 10,10 --turn 30 --min-area 10 -o " + Out("a.json") + " " + drawing), 0)
      << fStderr;
  const auto json = xsec::ParsedJson(ReadFile(Out("a.json")));
  ASSERT_EQ(json["regions"].size(), 1U);
  EXPECT_NEAR(json["regions"][0]["centroid"][0].get<double>(), 5, 1e-9);
  EXPECT_NEAR(json["regions"][0]["netArea"].get<double>(), 91, 1e-9);
}

TEST_F(Xsec, SmallRegionsGetNoNameInThePictureWhenThatIsAskedFor) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + Square(2, 2, 3)));
  const auto namesIn = [&](const std::string& options) {
    EXPECT_EQ(RunXsec("regions " + drawing + options + " -o " + Out("a.svg")), 0) << fStderr;
    const std::string picture = ReadFile(Out("a.svg"));
    return std::pair(picture.find(">Plate</text>") != std::string::npos,
                     picture.find(">Plate_1</text>") != std::string::npos);
  };
  EXPECT_EQ(namesIn(""), std::pair(true, true));
  EXPECT_EQ(namesIn(" --min-label-area 9"), std::pair(true, true));
  EXPECT_EQ(namesIn(" --min-label-area 9.1"), std::pair(true, false));
  EXPECT_EQ(RunXsec("regions --min-label-area -1 " + drawing), 2);
}

TEST_F(Xsec, NamesComeFromRulesTextsAndBlocks) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10) + "0\nTEXT\n8\nNotes\n10\n5\n20\n5\n1\nYoke\n"));
  EXPECT_EQ(RunXsec("regions --name-from text " + drawing), 0) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("name Yoke: 1 region, 100 mm2"));
  std::ofstream(Out("rules.json"))
      << R"({"rules": [{"when": {"text": "Yo*"}, "set": {"name": "Core", "material": "M270"}}]})";
  EXPECT_EQ(RunXsec("regions --rules " + Out("rules.json") + " --copies 4 " + drawing), 0) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("name Core: 1 region, 100 mm2, of 4 copies 400 mm2"));
  EXPECT_THAT(fStdout, HasSubstr("material M270: 1 region, 100 mm2, of 4 copies 400 mm2"));
  EXPECT_EQ(RunXsec("regions --name-from colour " + drawing), 2);
  EXPECT_THAT(fStderr, HasSubstr("--name-from colour: unknown; known are layer, text, block"));
}

TEST_F(Xsec, TransformWritesWhatItWasAskedForOnce) {
  const std::string drawing = Drawing(DxfOf(Square(1, 1, 10)));
  EXPECT_EQ(RunXsec("transform " + drawing + " --offset -1"), 0) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("1 region, net area 64 mm2"));
  EXPECT_EQ(RunXsec("transform " + drawing + " --mirror 0,0,0,1 -o " + Out("a.json")), 0) << fStderr;
  EXPECT_EQ(xsec::ParsedJson(ReadFile(Out("a.json")))["drawing"]["extents"]["minX"], -11);
  EXPECT_EQ(RunXsec("transform " + drawing + " --rotate 90 -o " + Out("a.dxf")), 0) << fStderr;
  EXPECT_EQ(RunXsec("info " + Out("a.dxf")), 0) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("x -11 to -1, y 1 to 11"));
  EXPECT_EQ(RunXsec("transform " + drawing + " --copies 4"), 0) << fStderr;
  EXPECT_THAT(fStdout, HasSubstr("name Plate: 4 regions, 400 mm2"));
  EXPECT_EQ(RunXsec("transform " + drawing), 2);
  EXPECT_EQ(RunXsec("transform " + drawing + " --rotate 9 --copies 4"), 2);
  EXPECT_EQ(RunXsec("transform " + drawing + " --mirror 1,1,1,1"), 2);
}

TEST_F(Xsec, OffsetNeighboursThatWouldOverlapAreRefused) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 4) + Square(6, 0, 4)));
  EXPECT_EQ(RunXsec("transform " + drawing + " --offset 1.5"), 6);
  EXPECT_THAT(fStderr, HasSubstr("overlaps region"));
  EXPECT_THAT(fStderr, HasSubstr(" at (5, "));
}

TEST_F(Xsec, MotionsOutOfRangeAreRefused) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 4)));
  for (const char* offset : {"1e308", "-1e308", "5700"}) {
    EXPECT_EQ(RunXsec("transform " + drawing + " --offset=" + offset), 2);
    EXPECT_THAT(fStderr, HasSubstr("give a distance of at most 5656.85 mm"));
  }
  EXPECT_EQ(RunXsec("transform " + drawing + " --mirror 1e101,0,1e101,1"), 2);
  EXPECT_THAT(fStderr, HasSubstr("the result reaches farther than 1e+100 mm"));
}

TEST_F(Xsec, OffsetOfNothingFindsNothing) {
  EXPECT_EQ(RunXsec("transform " + Drawing(DxfOf("")) + " --offset 1"), 5);
  EXPECT_THAT(fStderr, HasSubstr("no closed region found"));
}

TEST_F(Xsec, ToleranceBelowRoundingIsWarnedOf) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 4)));
  EXPECT_EQ(RunXsec("regions --tol 5e-11 " + drawing), 0);
  EXPECT_THAT(fStderr, HasSubstr("warning: a tolerance of 5e-11 mm is less than rounding does"));
  EXPECT_THAT(fStderr, HasSubstr("give --tol 5.7e-11 or more"));
  EXPECT_EQ(RunXsec("check --tol 5e-11 " + drawing), 1);
  EXPECT_THAT(fStdout, HasSubstr("a tolerance of 5e-11 mm is less than rounding does"));
  EXPECT_THAT(fStdout, HasSubstr("give --tol 5.7e-11 or more"));
  EXPECT_EQ(RunXsec("regions --tol 5.7e-11 " + drawing), 0);
  EXPECT_THAT(fStderr, Not(HasSubstr("rounding")));
}

TEST_F(Xsec, DiffTellsWhatChangedByItsExitCode) {
  EXPECT_EQ(RunXsec("regions " + Drawing(DxfOf(Square(0, 0, 10))) + " -o " + Out("a.json")), 0);
  EXPECT_EQ(RunXsec("regions " + Drawing(DxfOf(Square(0, 0, 11))) + " -o " + Out("b.json")), 0);
  EXPECT_EQ(RunXsec("diff " + Out("a.json") + " " + Out("a.json")), 0);
  EXPECT_EQ(RunXsec("diff " + Out("a.json") + " " + Out("b.json")), 1);
  EXPECT_THAT(fStdout, HasSubstr("1 changed"));
  EXPECT_EQ(RunXsec("diff " + Out("a.json") + " " + Out("b.json") + " --tol 100"), 0) << fStdout;
}

TEST_F(Xsec, SchemaIsPrinted) {
  EXPECT_EQ(RunXsec("schema"), 0);
  EXPECT_TRUE(xsec::ParsedJson(fStdout).contains("properties"));
}

TEST_F(Xsec, EndNearASideIsToldWithAToleranceThatWasTried) {
  // The upper edge of the slot ends short of the slanting side of the plate.
  const std::string plate = Line(0, 0, 40, 0) + Line(40, 0, 50, 30) + Line(50, 30, 0, 30) + Line(0, 30, 0, 0);
  const std::string drawing = Drawing(DxfOf(plate + Line(0, 15, 44.998, 15)));
  EXPECT_EQ(RunXsec("check --json " + drawing), 1) << fStderr;
  const auto miss = xsec::ParsedJson(fStdout)["nearMisses"][0];
  EXPECT_FALSE(miss["otherIsEnd"]);
  EXPECT_TRUE(miss["closes"]);
  EXPECT_EQ(RunXsec("check " + drawing), 1);
  EXPECT_THAT(fStdout, HasSubstr("to the side"));
}

TEST_F(Xsec, HelpAndVersionGoToStandardOutput) {
  EXPECT_EQ(RunXsec("--help"), 0);
  EXPECT_THAT(fStdout, HasSubstr("Examples:"));
  EXPECT_EQ(RunXsec("regions --help"), 0);
  EXPECT_THAT(fStdout, HasSubstr("--machine-type"));
  EXPECT_EQ(RunXsec("--version"), 0);
  EXPECT_THAT(fStdout, StartsWith("xsec "));
  EXPECT_THAT(fStderr, IsEmpty());
}

TEST_F(Xsec, ShowsNoProgressWhereNobodyWatches) {
  EXPECT_EQ(RunXsec("regions " + Drawing(DxfOf(Square(0, 0, 10)))), 0);
  EXPECT_EQ(fStderr.find('\r'), std::string::npos);
}

// A block without lines placed 400 million times takes time and no memory; one with a line takes both.
TEST_F(Xsec, LimitsOfTheProcessEndItWithACodeOfTheirOwn) {
  const std::string array = "0\nINSERT\n2\nb\n70\n20000\n71\n20000\n44\n1\n45\n1\n";
  if (kSignalsReachLoops) {
    EXPECT_EQ(RunXsec("info --max-entities 1000000000 --max-seconds 1 " + Drawing(DxfOf("", array))), 7);
    EXPECT_EQ(fStderr, "xsec: the time given by --max-seconds is used up\n");
  }
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // which take all the address space there is
  const std::string line = Line(0, 0, 1, 1);
  EXPECT_EQ(RunXsec("info --max-entities 1000000000 --max-memory 400 " + Drawing(DxfOf(line, array))), 7);
  EXPECT_THAT(fStderr, StartsWith("xsec: the memory is used up; "));
#endif
}

TEST_F(Xsec, LimitsOfTheDrawingAreOptions) {
  const std::string drawing = Drawing(DxfOf(Square(0, 0, 10)));
  EXPECT_EQ(RunXsec("regions --max-entities 4 --max-file 1 " + drawing), 0);
  EXPECT_EQ(RunXsec("regions --max-entities 3 " + drawing), 3);
  EXPECT_THAT(fStderr, HasSubstr("more than 3 lines and arcs"));
  const std::string large = Drawing(std::string(2 << 20, ' '));
  EXPECT_EQ(RunXsec("regions --max-file 1 " + large), 3);
  EXPECT_THAT(fStderr, HasSubstr("the file has more than 1 MiB"));
  EXPECT_EQ(RunXsec("regions --max-entities 0 " + drawing), 2);
  EXPECT_THAT(fStderr, HasSubstr("--max-entities 0: expected a number from 1 to "));
}

/// Starts xsec as a terminal would, which ignores no signal: whoever runs the tests in the background may. What it
/// tells goes to a file.
pid_t StartXsec(const std::vector<std::string>& arguments, const std::string& messages) {
  std::vector<char*> pointers;
  for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  const pid_t child = ::fork();
  if (child != 0) return child;
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, SIG_DFL);
  const rlimit noCore{0, 0};
  ::setrlimit(RLIMIT_CORE, &noCore);
  if (std::freopen("/dev/null", "w", stdout) && std::freopen(messages.c_str(), "w", stderr)) {
    ::execv(XSEC_PROGRAM, pointers.data());
  }
  ::_exit(99);
}

TEST_F(Xsec, InterruptLeavesWholeFilesOrNone) {
  const std::string drawing = Drawing(DxfOf(Grid(20)));
  bool isIsolated = false;
  for (int milliseconds = 1; milliseconds < 1000; milliseconds = milliseconds * 5 / 4 + 1, isIsolated = !isIsolated) {
    std::vector<std::string> arguments{"xsec", "regions", drawing, "-o", Out("a.json")};
    if (isIsolated) arguments.emplace_back("--isolate");
    const pid_t child = StartXsec(arguments, "/dev/null");
    ASSERT_GE(child, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    ::kill(child, SIGINT);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGINT : WEXITSTATUS(status) == 0);
    if (FilesWritten().empty()) continue;
    ASSERT_THAT(FilesWritten(), ElementsAre("a.json"));
    EXPECT_TRUE(nlohmann::json::accept(ReadFile(Out("a.json"))));
    fs::remove(Out("a.json"));
  }
}

/// xsec at work in a process apart, on a drawing that does not come: a pipe that nobody has written to yet.
class XsecApart : public Xsec {
 protected:
  void SetUp() override {
    Xsec::SetUp();
    const std::string pipe = (fFolder / "in" / "pipe.dxf").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fProgram = StartXsec({"xsec", "regions", pipe, "--isolate", "-o", Out("a.json")}, fFolder / "stderr");
    ASSERT_GE(fProgram, 0);
    fPipe = ::open(pipe.c_str(), O_WRONLY | O_CLOEXEC);  // waits until the drawing is opened
    ASSERT_GE(fPipe, 0);
    fWorker = ChildOf(fProgram);
    ASSERT_GT(fWorker, 0) << "no process apart reads the drawing";
  }
  void TearDown() override {
    if (fPipe >= 0) ::close(fPipe);
    if (!fHasEnded && fProgram > 0) AwaitProgram();
    Xsec::TearDown();
  }

  /// The status of the program that was started.
  int AwaitProgram() {
    int status = 0;
    EXPECT_EQ(::waitpid(fProgram, &status, 0), fProgram);
    fHasEnded = true;
    fStderr = ReadFile(fFolder / "stderr");
    return status;
  }

  /// A process that has this one as its parent, 0 when none has.
  static pid_t ChildOf(pid_t parent) {
    for (const auto& entry : fs::directory_iterator("/proc")) {
      std::ifstream status(entry.path() / "status");
      for (std::string word; status >> word;) {
        if (word != "PPid:") continue;
        pid_t of = 0;
        if (status >> of && of == parent) return std::stoi(entry.path().filename());
        break;
      }
    }
    return 0;
  }

  /// Whether nobody reads the drawing any more, within a minute.
  bool IsWorkerGone() const {
    pollfd writer{fPipe, 0, 0};
    return ::poll(&writer, 1, 60000) == 1 && (writer.revents & POLLERR) != 0;
  }

  pid_t fProgram = 0;  ///< the one that waits
  pid_t fWorker = 0;   ///< the one that reads the drawing
  int fPipe = -1;
  bool fHasEnded = false;
};

TEST_F(XsecApart, CrashIsToldAndHasACodeOfItsOwn) {
  std::ofstream(Out("a.json." + std::to_string(fWorker) + "-0.tmp")) << "half of what is wri";
  ::kill(fWorker, SIGABRT);
  const int status = AwaitProgram();
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 8);
  EXPECT_EQ(fStderr,
            "xsec: the process at work was ended by signal 6 (Aborted): that is a mistake in the program; "
            "please report it, if you can with the drawing\n");
  EXPECT_THAT(FilesWritten(), IsEmpty());
}

TEST_F(XsecApart, KillAsByASystemOutOfMemoryIsToldWithWhatHelps) {
  ::kill(fWorker, SIGKILL);
  const int status = AwaitProgram();
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 8);
  EXPECT_THAT(fStderr, StartsWith("xsec: the process at work was ended by signal 9 (Killed): "));
  EXPECT_THAT(fStderr, HasSubstr("--max-memory"));
}

TEST_F(XsecApart, InterruptsReachTheWorkerAndEndTheProgramAsEver) {
  ::kill(fProgram, SIGINT);
  const int status = AwaitProgram();
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGINT);
  EXPECT_TRUE(IsWorkerGone());
  EXPECT_THAT(fStderr, IsEmpty());
}

TEST_F(XsecApart, RequestToEndThatTheWorkerGetsEndsTheProgram) {
  ::kill(fWorker, SIGTERM);
  const int status = AwaitProgram();
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST_F(XsecApart, WorkerEndsWithTheProgram) {
  ::kill(fProgram, SIGKILL);
  ASSERT_TRUE(WIFSIGNALED(AwaitProgram()));
  EXPECT_TRUE(IsWorkerGone());
}

TEST_F(XsecApart, DrawingThatComesIsAnsweredAsEver) {
  const std::string drawing = DxfOf(Square(0, 0, 10));
  ASSERT_EQ(::write(fPipe, drawing.data(), drawing.size()), static_cast<ssize_t>(drawing.size()));
  ::close(std::exchange(fPipe, -1));
  const int status = AwaitProgram();
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0) << fStderr;
  EXPECT_EQ(xsec::ParsedJson(ReadFile(Out("a.json")))["regions"].size(), 1U);
}

TEST_F(Xsec, IsolatedAnswersWhatItAnswersInOneProcess) {
  const std::string array = "0\nINSERT\n2\nb\n70\n20000\n71\n20000\n44\n1\n45\n1\n";
  std::vector<std::pair<std::string, int>> runs = {
      {"regions " + Drawing("square.dxf", DxfOf(Square(0, 0, 10))), 0},
      {"check " + Drawing("open.dxf", DxfOf(Line(0, 0, 1, 0))), 1},
      {"info no-such.dxf", 3},
      {"regions " + Drawing("again.dxf", DxfOf(Square(0, 0, 10))) + " -o /no-such-folder/a.svg", 4},
      {"regions " + Drawing("line.dxf", DxfOf(Line(0, 0, 1, 0))), 5}};
  if (kSignalsReachLoops) {
    runs.emplace_back("info --max-entities 1000000000 --max-seconds 1 " + Drawing("array.dxf", DxfOf("", array)), 7);
  }
  for (const auto& [arguments, code] : runs) {
    EXPECT_EQ(RunXsec(arguments), code) << arguments;
    const std::string printed = fStdout, told = fStderr;
    EXPECT_EQ(RunXsec(arguments + " --isolate"), code) << arguments;
    EXPECT_EQ(fStdout, printed);
    EXPECT_EQ(fStderr, told);
  }
}

TEST_F(Xsec, SignalInTheMidstOfWritingLeavesNothingBehindWhenIsolated) {
  const std::string drawing = Drawing(DxfOf(Grid(8)));
  std::ofstream(Out("b.json")) << "old";
  const std::string arguments = "regions " + drawing + " -o " + Out("a.svg") + " -o " + Out("b.json");
  EXPECT_EQ(RunXsec(arguments + " --isolate", "ulimit -c 0; ulimit -f 1;"), 8);
  EXPECT_THAT(fStderr, HasSubstr("(File size limit exceeded)"));
  EXPECT_THAT(FilesWritten(), ElementsAre("b.json"));
  EXPECT_EQ(ReadFile(Out("b.json")), "old");
}

}  // namespace
