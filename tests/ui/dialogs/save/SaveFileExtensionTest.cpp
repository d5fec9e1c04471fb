// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/save/SaveFileExtension_p.h"

#include "LiteralExtensionRule.h"

#include <gtest/gtest.h>

#include <boost/filesystem/path.hpp>

#include <ostream>
#include <random>
#include <string>

namespace {

using morvane::test::applyExtensionByExpressions;
using morvane::ui::applyFilterExtension;

constexpr bool slashIsNative = boost::filesystem::path::preferred_separator == '/';

struct RuleCase
{
    const char* filename;
    const char* nameFilter;
    const char* expected;
};

void PrintTo(const RuleCase& c, std::ostream* out)
{
    *out << testing::PrintToString(std::string(c.filename)) << " as "
         << testing::PrintToString(std::string(c.nameFilter));
}

class SaveFileExtensionTest : public testing::TestWithParam<RuleCase>
{
};

} // namespace

TEST_P(SaveFileExtensionTest, isAppliedToNamesWithoutOne)
{
    const RuleCase& c = GetParam();
    EXPECT_EQ(applyFilterExtension(c.filename, c.nameFilter), c.expected);
    EXPECT_EQ(applyExtensionByExpressions(c.filename, c.nameFilter), c.expected)
        << "the oracle disagrees with the table";
}

INSTANTIATE_TEST_SUITE_P(Names, SaveFileExtensionTest,
    testing::Values(RuleCase{"/d/report", "Data files (*.dat)", "/d/report.dat"},
        RuleCase{"/d/report.", "Data files (*.dat)", "/d/report.dat"},
        RuleCase{"/d/report.txt", "Data files (*.dat)", "/d/report.txt"},
        RuleCase{"/d/report.DAT", "Data files (*.dat)", "/d/report.DAT"},
        RuleCase{"/d/report", "Data files (*.DAT)", "/d/report.DAT"},
        RuleCase{"C:/release1.2/report", "Data files (*.dat)", "C:/release1.2/report"},
        RuleCase{"/d/report..", "Data files (*.dat)", "/d/report..dat"},
        RuleCase{"/d/.hidden", "Data files (*.dat)", "/d/.hidden"},
        RuleCase{"/d/.hidden.", "Data files (*.dat)", "/d/.hidden.dat"},
        RuleCase{"/d/archive", "Archives (*.tar.gz)", "/d/archive.gz"},
        RuleCase{"/d/archive.tar", "Archives (*.tar.gz)", "/d/archive.tar"},
        RuleCase{"/d/plan", "Layouts (*.plt *.lay)", "/d/plan.lay"},
        RuleCase{"/d/report", "All files (*)", "/d/report.Allfiles"}, RuleCase{"/d/report", "*", "/d/report"},
        RuleCase{"/d/report", "(* ) ( *)", "/d/report"}, RuleCase{"/d/report", "All (*.*)", "/d/report."},
        RuleCase{"/d/report", "", "/d/report"}, RuleCase{"/d/report", "Everything", "/d/report.Everything"},
        RuleCase{"/d/report", "Single (*.d?t)", "/d/report.d?t"},
        RuleCase{"/d/report", "Set (*.[ch])", "/d/report.[ch]"}, RuleCase{"/d/report", "dat", "/d/report.dat"},
        RuleCase{"/d/report", "v1.2 data", "/d/report.2data"}, RuleCase{"report", "Data (*.dat)", "report.dat"},
        RuleCase{"", "Data (*.dat)", ".dat"}, RuleCase{"/d/", "Data (*.dat)", "/d/.dat"},
        RuleCase{"/d\\e\\report", "Data (*.dat)", slashIsNative ? "/d\\e\\report.dat" : "/d/e/report.dat"},
        RuleCase{"/d/\xE6\x97\xA5\xE6\x9C\xAC", "Data (*.\xC3\xA4)", "/d/\xE6\x97\xA5\xE6\x9C\xAC.\xC3\xA4"},
        RuleCase{"/d/\xF0\x9F\x98\x80.", "D\t(*.d\ta\nt)", "/d/\xF0\x9F\x98\x80.dat"}));

TEST(SaveFileExtensionRule, keepsNamesLongerThanADiskTakes)
{
    for (const std::size_t length : {250u, 255u, 300u}) {
        const std::string name = "/d/" + std::string(length, 'n');
        EXPECT_EQ(applyFilterExtension(name, "Data (*.dat)"), name + ".dat");
    }
}

TEST(SaveFileExtensionRule, agreesWithTheExpressionsOnRandomTexts)
{
    std::mt19937 random(20260812);
    const std::string pieces[] = {
        ".", "a", "/", "dat", " ", "(", ")", "*", "\xC3\xA4", "\\", "\n", "\t", "\r", "\v", "\x08", "\x0e", "..", "?"};
    const auto text = [&](int longest) {
        std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
        std::string result;
        for (int i = std::uniform_int_distribution<int>(0, longest)(random); i > 0; --i) {
            result += pieces[pick(random)];
        }
        return result;
    };
    for (int i = 0; i < 50000 && !testing::Test::HasFailure(); ++i) {
        const std::string name = text(6);
        const std::string filter = text(8);
        EXPECT_EQ(applyFilterExtension(name, filter), applyExtensionByExpressions(name, filter))
            << testing::PrintToString(name) << " with " << testing::PrintToString(filter);
    }
}
