"""The checks in tools/ see the faults that they are there for. Each test lays out a small tree with one fault."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"

ENGINE = "GeometryEngine/"
GOOD = {
    ENGINE + "GeometryEngine.h": ("Export.h", "host/TIndex.h", "DXF_Entity_Types/Tolerances.h",
                                  "GeometryFuncts/Rotation.h"),
    ENGINE + "host/TIndex.h": (),
    ENGINE + "DXF_Entity_Types/Tolerances.h": ("Export.h", "host/TIndex.h"),
    ENGINE + "DXF_Entity_Types/Tolerances.cpp": ("DXF_Entity_Types/Tolerances.h",),
    ENGINE + "GeometryFuncts/Rotation.h": ("DXF_Entity_Types/Tolerances.h",),
    ENGINE + "GeometryFuncts/Rotation.cpp": ("GeometryFuncts/Rotation.h",),
}


class Tree(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        for path, names in GOOD.items():
            self.write(path, names)

    def write(self, path, names=(), text=""):
        """A source with a guard, includes of the library by their short names, and more text."""
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        guard = "#pragma once\n" if path.endswith(".h") else ""
        file.write_text(guard + "".join(f'#include "{ENGINE}{name}"\n' for name in names) + text)

    def run_tool(self, name, *arguments):
        """Runs a copy of the tool that stands in the small tree; gives its exit code and what it printed."""
        (self.root / "tools").mkdir(exist_ok=True)
        shutil.copy(TOOLS / name, self.root / "tools")
        done = subprocess.run([sys.executable, self.root / "tools" / name, *arguments], capture_output=True, text=True)
        return done.returncode, done.stdout + done.stderr

    def assert_fault(self, tool, words, *arguments):
        code, text = self.run_tool(tool, *arguments)
        self.assertEqual(code, 1, text)
        self.assertIn(words, text)


class CheckLayers(Tree):
    def test_a_good_tree_passes(self):
        code, text = self.run_tool("check_layers.py")
        self.assertEqual(code, 0, text)

    def test_an_include_upwards_is_a_fault(self):
        self.write(ENGINE + "DXF_Entity_Types/Tolerances.cpp", ["GeometryFuncts/Rotation.h"])
        self.assert_fault("check_layers.py", "(layer 1) includes GeometryEngine/GeometryFuncts/Rotation.h (layer 2)")

    def test_a_circle_of_files_is_a_fault(self):
        self.write(ENGINE + "host/TIndex.h", ["host/Numerics.h"])
        self.write(ENGINE + "host/Numerics.h", ["host/TIndex.h"])
        self.assert_fault("check_layers.py", "circle of includes: ")

    def test_a_circle_of_headers_with_their_sources_is_a_fault(self):
        self.write(ENGINE + "GeometryFuncts/AxialBlocks.h")
        self.write(ENGINE + "GeometryFuncts/AxialBlocks_More.cpp", ["GeometryFuncts/Rotation.h"])
        self.write(ENGINE + "GeometryFuncts/Rotation.cpp", ["GeometryFuncts/AxialBlocks.h"])
        self.assert_fault("check_layers.py", "circle of headers and sources: ")

    def test_a_file_without_a_layer_is_a_fault(self):
        self.write(ENGINE + "Elsewhere/Thing.cpp")
        self.assert_fault("check_layers.py", "Elsewhere/Thing.cpp: in 0 layers")

    def test_a_public_header_that_the_big_one_leaves_out_is_a_fault(self):
        self.write(ENGINE + "host/Numerics.h")
        self.assert_fault("check_layers.py", "does not list GeometryEngine/host/Numerics.h")

    def test_the_library_using_the_big_header_is_a_fault(self):
        self.write(ENGINE + "GeometryFuncts/Rotation.cpp", ["GeometryEngine.h"])
        self.assert_fault("check_layers.py", "is for hosts")

    def test_a_header_from_elsewhere_is_a_fault(self):
        self.write(ENGINE + "GeometryFuncts/Rotation.cpp", text="#include <unistd.h>\n")
        self.assert_fault("check_layers.py", "<unistd.h> is no header of the C++ standard library")

    def test_the_library_including_tests_is_a_fault(self):
        self.write(ENGINE + "GeometryFuncts/Rotation.cpp", text='#include "tests/support/Geometry.h"\n')
        self.assert_fault("check_layers.py", "is no file of the library")

    def test_a_host_program_including_private_headers_is_a_fault(self):
        self.write("xsec/main.cpp", ["GeometryFuncts/detail/Secret.h"])
        self.assert_fault("check_layers.py", "is private to the library")


class CheckSources(Tree):
    COMMENT = "// KEPT: an answer that callers rely on\n"
    TEST = "TEST(Numerics, AnswersAsEverKept) {}\n"
    ROW = "| what | why | `host/Numerics.cpp` | `Numerics.AnswersAsEverKept` |\n"
    LIMIT = "\n## Limits\n| what | 7 | `host/Numerics.cpp` | `Numerics.AnswersAsEverKept` |\n"
    MISTAKE = "GeometryEngine/host/Numerics.cpp | return a | b; | return a & b; | why\n"

    def lay_out(self, comment="", test="", row=""):
        self.write(ENGINE + "host/Numerics.cpp", text=comment)
        self.write("tests/host/NumericsTest.cpp", text=test)
        self.write("docs/kept.md", text="# Kept on purpose\n" + row)

    def test_a_good_tree_passes(self):
        self.lay_out(self.COMMENT, self.TEST, self.ROW + self.LIMIT)
        code, text = self.run_tool("check_sources.py")
        self.assertEqual(code, 0, text)
        self.assertIn("1 oddities kept, 1 KEPT: comments in sources, 1 tests", text)

    def test_a_comment_without_a_row_is_a_fault(self):
        self.lay_out(self.COMMENT)
        self.assert_fault("check_sources.py", "host/Numerics.cpp: 1 KEPT: comments, but 0 rows")

    def test_a_row_without_a_comment_is_a_fault(self):
        self.lay_out("", self.TEST, self.ROW)
        self.assert_fault("check_sources.py", "host/Numerics.cpp has no KEPT: comment")

    def test_a_row_of_a_missing_file_is_a_fault(self):
        self.lay_out(self.COMMENT, self.TEST, self.ROW + self.ROW.replace("Numerics.cpp", "Nowhere.cpp"))
        self.assert_fault("check_sources.py", "there is no host/Nowhere.cpp")

    def test_a_row_whose_test_is_missing_is_a_fault(self):
        self.lay_out(self.COMMENT, "", self.ROW)
        self.assert_fault("check_sources.py", "there is no test Numerics.AnswersAsEverKept")

    def test_a_test_without_a_row_is_a_fault(self):
        self.lay_out("", self.TEST)
        self.assert_fault("check_sources.py", "does not list Numerics.AnswersAsEverKept")

    def test_a_row_without_a_reason_is_a_fault(self):
        self.lay_out(self.COMMENT, self.TEST, self.ROW.replace("why", ""))
        self.assert_fault("check_sources.py", "no reason for: what")

    def test_a_limit_whose_test_is_missing_is_a_fault(self):
        self.lay_out(self.COMMENT, self.TEST, self.ROW + self.LIMIT.replace("AsEver", "Never"))
        self.assert_fault("check_sources.py", "there is no test Numerics.AnswersNeverKept")

    def test_a_limit_without_a_test_is_a_fault(self):
        self.lay_out(self.COMMENT, self.TEST, self.ROW + self.LIMIT.replace("`Numerics.AnswersAsEverKept`", ""))
        self.assert_fault("check_sources.py", "no test of the limit: what")

    def test_a_limit_of_a_missing_file_is_a_fault(self):
        self.lay_out(self.COMMENT, self.TEST, self.ROW + self.LIMIT.replace("Numerics.cpp", "Nowhere.cpp"))
        self.assert_fault("check_sources.py", "there is no host/Nowhere.cpp")

    def test_a_header_that_speaks_of_more_than_the_page_is_a_fault(self):
        self.lay_out()
        self.write(ENGINE + "host/Numerics.h", text="/// KEPT: an answer that callers rely on\n")
        self.assert_fault("check_sources.py", "host: its headers have 1 KEPT: comments, but docs/kept.md 0 rows")

    def test_a_mistake_in_a_line_that_is_there_is_none(self):
        self.lay_out("  return a | b;\n")
        self.write("tests/mutants.txt", text=self.MISTAKE)
        code, text = self.run_tool("check_sources.py")
        self.assertEqual(code, 0, text)

    def test_a_mistake_in_a_line_that_is_gone_is_a_fault(self):
        self.lay_out("  return b | a;\n")
        self.write("tests/mutants.txt", text=self.MISTAKE)
        self.assert_fault("check_sources.py", "host/Numerics.cpp has no line return a")

    def test_a_long_source_is_a_fault(self):
        self.lay_out("\n" * 401)
        self.assert_fault("check_sources.py", "401 lines, 400 is the most")

    def test_a_header_without_a_guard_is_a_fault(self):
        self.lay_out()
        (self.root / ENGINE / "host/Numerics.h").write_text("int f();\n")
        self.assert_fault("check_sources.py", "no #pragma once")


class CheckDocs(Tree):
    def lay_out(self, architecture, readme="[more](ARCHITECTURE.md)"):
        self.write("ARCHITECTURE.md", text=architecture)
        self.write("README.md", text=readme)

    def test_a_good_tree_passes(self):
        self.lay_out("`TIndex`, `Tolerances` and `Rotation`")
        code, text = self.run_tool("check_docs.py")
        self.assertEqual(code, 0, text)

    def test_a_header_that_no_page_names_is_a_fault(self):
        self.lay_out("`TIndex` and `Tolerances`")
        self.assert_fault("check_docs.py", "does not name Rotation")

    def test_a_private_header_that_no_page_names_is_a_fault(self):
        self.write(ENGINE + "GeometryFuncts/detail/Secret.h")
        self.lay_out("`TIndex`, `Tolerances` and `Rotation`")
        self.assert_fault("check_docs.py", "does not name Secret")

    def test_a_link_that_leads_nowhere_is_a_fault(self):
        self.lay_out("`TIndex`, `Tolerances` and `Rotation`", "[more](docs/nothing.md)")
        self.assert_fault("check_docs.py", "README.md: nothing at docs/nothing.md")

    def test_a_test_that_is_named_but_not_there_is_a_fault(self):
        self.lay_out("`TIndex`, `Tolerances` and `Rotation`")
        self.write("docs/reliability.md", text="`Growth.IsNone`")
        self.write("tests/fuzz/CMakeLists.txt", text="set(targets Pairs)")
        self.assert_fault("check_docs.py", "there is no test Growth.IsNone")


class CheckExports(Tree):
    def library(self, text):
        source, library = self.root / "library.cpp", self.root / "library.so"
        source.write_text(text)
        subprocess.run(["c++", "-shared", "-fPIC", source, "-o", library], check=True)
        return str(library)

    def test_own_names_pass(self):
        code, text = self.run_tool("check_exports.py", self.library(
            "namespace GeometryEngine { struct A { virtual ~A(); }; A::~A() {} int f() { return 1; } }"))
        self.assertEqual(code, 0, text)

    def test_a_name_from_elsewhere_is_a_fault(self):
        self.assert_fault("check_exports.py", "none of ours: helper(int)", self.library(
            "namespace GeometryEngine { int f() { return 1; } } int helper(int x) { return x; }"))

    def test_a_private_name_is_a_fault(self):
        self.assert_fault("check_exports.py", "none of ours: GeometryEngine::detail::f()", self.library(
            "namespace GeometryEngine { int f() { return 1; } namespace detail { int f() { return 1; } } }"))

    def test_nothing_exported_is_a_fault(self):
        self.assert_fault("check_exports.py", "nothing is exported at all", self.library("static int a;"))


if __name__ == "__main__":
    unittest.main()
