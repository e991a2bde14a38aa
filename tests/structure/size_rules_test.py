"""Shows that the rules of sizes can be broken."""

import unittest

import cpp_text
import size_rules


def function_of(lines, head="void f(int a) const"):
    return head + " {\n" + "    a();\n" * (lines - 2) + "}\n"


class Functions(unittest.TestCase):
    def names(self, code):
        return [name for name, first, last in cpp_text.functions(cpp_text.code_of(code))]

    def test_functions_of_all_kinds_are_found(self):
        code = """
            namespace a {
            struct S { S(); int x{3}; int get() const { return x; } bool is(const S&) = delete; };
            S::S() : x{1}, y(f({2})) { g(); }
            auto h() -> std::vector<int> { return {1, 2}; }
            template <typename T> T twice(T value) noexcept { return value + value; }
            TEST(Suite, Name) { if (a) { b(); } for (;;) { } }
            constexpr std::array table{1, 2, 3};
            enum class E { a, b };
            }
        """
        self.assertEqual(self.names(code), ["get", "S::S", "h", "twice", "TEST"])

    def test_what_only_looks_like_a_function_is_none(self):
        code = "// void f() {\n/* void g() { */ const char* t = \"void h() {\";\n#define X() {\n"
        self.assertEqual(self.names(code + 'auto r = R"(void i() {)";'), [])


class SizeRules(unittest.TestCase):
    def complaints(self, text):
        return size_rules.complaints({"src/a/b.cpp": text})

    def assert_complaint(self, text, words):
        found = self.complaints(text)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_a_function_has_at_most_60_lines(self):
        self.assertEqual(self.complaints(function_of(60)), [])
        self.assert_complaint(function_of(61), "src/a/b.cpp:1: f has 61 lines")

    def test_a_test_is_a_function(self):
        self.assert_complaint(function_of(61, "TEST_F(Suite, Name)"), "TEST_F has 61 lines")

    def test_functions_are_found_in_classes_and_namespaces(self):
        text = "namespace a {\nclass B {\n" + function_of(61) + "};\n}\n"
        self.assert_complaint(text, "src/a/b.cpp:3: f has 61 lines")

    def test_a_table_may_be_long(self):
        table = "constexpr int rows[] = {\n" + "    1,\n" * 100 + "};\n"
        self.assertEqual(self.complaints(table), [])

    def test_a_line_has_at_most_100_columns(self):
        self.assertEqual(self.complaints("x" * 100 + "\n"), [])
        self.assert_complaint("x" * 101 + "\n", "src/a/b.cpp:1 has 101 columns")

    def test_columns_are_letters_and_not_bytes(self):
        self.assertEqual(self.complaints("µ" * 100 + "\n"), [])

    def test_a_text_is_not_broken_to_fit(self):
        self.assertEqual(self.complaints('    "' + "x" * 100 + '",\n'), [])

    def test_an_interface_has_at_most_ten_members(self):
        def interface(count):
            members = "    virtual void f(int a = 0)\n        const = 0;\n" * count
            return "class Port {\n  public:\n    virtual ~Port() = default;\n" + members + "};\n"

        self.assertEqual(self.complaints(interface(10)), [])
        self.assert_complaint(interface(11), "src/a/b.cpp:1: Port has 11 members")

    def test_the_windows_of_the_program_have_at_most_90_branches(self):
        def window(count):
            return {"src/app/win/shell/a.cpp": "void f() {\n" + "if (a) {}  // if\n" * count + "}\n"}

        split = window(30) | {"src/app/win/view/b.cpp": "case 1:\n" * 60}
        self.assertEqual(size_rules.branches_of_windows(split), 90)
        self.assertFalse([c for c in size_rules.complaints(split) if "branches" in c])
        split["src/app/win/view/b.cpp"] += "case 2:\n"
        self.assertTrue([c for c in size_rules.complaints(split) if "91 branches" in c])
        elsewhere = {"src/app/a.cpp": "case 1:\n" * 91}
        self.assertEqual(size_rules.complaints(elsewhere), [])

    def test_values_of_members_are_no_members_of_an_interface(self):
        self.assertEqual(self.complaints("struct S {\n" + "    int x = 0;\n" * 11 + "};\n"), [])


if __name__ == "__main__":
    unittest.main()
