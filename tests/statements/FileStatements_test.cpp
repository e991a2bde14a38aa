#include <gtest/gtest.h>

#include <string>

#include "app/DocumentsFixture.h"
#include "app/Options.h"
#include "support/HelpStatements.h"
#include "support/MemoryINIFile.h"

// What the help says of tools, their files and their options.

namespace ormala {
namespace {

class FileStatements : public DocumentsFixture {
  protected:
    std::string closing() {
        const bool closes = close();
        return std::string(closes ? "closes, " : "stays, ") + (asked() ? "asked" : "not asked");
    }
    std::string kinds() { return stage_.kinds(); }
    static std::string count(std::size_t number) { return std::to_string(number); }
};

TEST_F(FileStatements, OfSetsOfTools) {
    expectHeld({
        {"Until you have made, loaded or saved a set of your own it does not ask, since nothing is "
         "lost then.",
         "a tool added after the start, and the close",
         [this] {
             start();
             stage_.addStencil();
             return closing();
         },
         "closes, not asked"},
        {"Before changes would be lost, Ormala asks whether to save them.",
         "a loaded set, another tool, and a close that is called off",
         [this] {
             loadNamed();
             stage_.addStencil();
             view_.answer = Answer::cancel;
             return closing();
         },
         "stays, asked"},
        {"Replaces the present tools by those of a file.", "a file with tools, loaded twice",
         [this] {
             loadNamed();
             const std::string once = kinds();
             loadNamed();
             return kinds() == once && !once.empty() ? "the same" : kinds();
         },
         "the same"},
        {"Writes the file of the path line; asks for a name if there is none.",
         "Save for a named set, and for one without a name",
         [this] {
             loadNamed();
             documents_.Save();
             const std::string named = count(view_.picks.size());
             documents_.New();
             view_.picked.clear();
             documents_.Save();
             return named + " " + count(view_.picks.size());
         },
         "0 1"},
        {"Removes all tools and begins a set without a name.", "New after a loaded set",
         [this] {
             loadNamed();
             documents_.New();
             return kinds() + "|" + ini_.file.Path();
         },
         "|"},
        {"Ormala brings the tools of the last run back by itself.", "an end and a start",
         [this] {
             startWithTools();
             const std::string before = kinds();
             close();
             stage_.list.RemoveAllTools();
             start();
             return kinds() == before && !before.empty() ? "the same" : kinds();
         },
         "the same"},
    });
}

TEST_F(FileStatements, OfWhatComesBack) {
    expectHeld({
        {"as long as you do nothing else to the tools, Ctrl+Z brings it back with its panel, its "
         "place and all its steps.",
         "the first of two tools, turned, removed and brought back",
         [this] {
             startWithTools();
             const std::string before = kinds();
             ctlSetRatioGrid& first = stage_.stencil(0);
             first.RefControl().setRotationAngle(1);
             first.AddHistoryStep();
             removed_.remove(first);
             removed_.bringBack();
             return kinds() == before && first.history().UndoPossible() ? "as before" : kinds();
         },
         "as before"},
        {"Directly after New set of tools and Load tools from file... Ctrl+Z brings the former set "
         "back, with the name of its file.",
         "New after a loaded set, taken back",
         [this] {
             view_.answer = Answer::no;
             loadNamed();
             const std::string before = kinds();
             documents_.New();
             removed_.bringBack();
             return kinds() == before ? ini_.file.Path() : kinds();
         },
         namedPath},
    });
}

TEST_F(FileStatements, OfWhatIsWrittenMeanwhile) {
    expectHeld({
        {"The first start of a day keeps the files of the last run as Ormala (previous).ini and "
         "Ormala Tools (previous).ini.",
         "a start with tools",
         [this] {
             startWithTools();
             return file("C:\\data\\Ormala Tools (previous).ini");
         },
         exampleToolFile},
        {"If two copies of Ormala run, the one that writes last wins; what the other one has "
         "written stays beside it as Ormala (other).ini and Ormala Tools (other).ini.",
         "two copies, of which each writes",
         [this] {
             startWithTools();
             FirstStart second(ini_, automaticPath);
             second.stage.stencil(0).setLineWidth(6);
             second.automatic.saveChanges();
             const std::string others = file(automaticPath);
             stage_.stencil(0).setLineWidth(7);
             automatic_.saveChanges();
             const bool kept = file("C:\\data\\Ormala Tools (other).ini") == others;
             return kept && file(automaticPath) != others ? "so it is" : "not so";
         },
         "so it is"},
    });
}

TEST_F(FileStatements, OfTools) {
    expectHeld({
        {"There is room for 33 tools.", "stencils until one is refused",
         [this] {
             stage_.list.RemoveAllTools();
             stage_.messages.errors.clear();
             int added = 0;
             while (stage_.list.AddNewControl(0) != nullptr) {
                 ++added;
             }
             stage_.list.RemoveAllTools();
             return std::to_string(added);
         },
         "33"},
        {"“The maximum number of tools (33) has been reached.”", "what was said then",
         [this] { return "“" + stage_.messages.errors.at(0) + "”"; },
         "“The maximum number of tools (33) has been reached.”"},
    });
}

TEST(HelpStatements, OfOptions) {
    expectHeld({
        {"Places and lengths of both tools are divided by the scaling of the screen that the "
         "worksheet lies on, with one decimal: at 200 percent, 301 pixels read as 150.5.",
         "301 pixels at 192 DPI", [] { return formatPixels(301, "0", {.logicalDpi = 192}); },
         "150.5"},
        {"A fraction is not kept as the default factor from one start to the next: 2.7 comes "
         "back as 3.",
         "written and read",
         [] {
             MemoryINIFile ini;
             Options options;
             options.defaultUnits.LengthFactor = 2.7;
             writeOptions(ini.file, options);
             return std::to_string(static_cast<int>(
                 readOptions(ini.file, languageEnglish).defaultUnits.LengthFactor));
         },
         "3"},
        {"A value that makes no sense does no harm: Ormala takes a sensible one instead and "
         "keeps all others.",
         "a step of the grid that is no number, beside a good one",
         [] {
             MemoryINIFile ini;
             ini.bytes() = "[S]\r\nGridSizeX=x\r\nGridSizeY= 75\r\n";
             const Grid steps = readOptions(ini.file, languageEnglish).aids.grid.steps;
             return std::to_string(steps.stepX) + " " + std::to_string(steps.stepY);
         },
         "50 75"},
    });
}

}  // namespace
}  // namespace ormala
