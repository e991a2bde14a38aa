#include "app/Options.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/DecimalComma.h"
#include "support/ManualLanguage.h"
#include "support/MemoryINIFile.h"

namespace ormala {
namespace {

/// One key: a value in the form of the file that is not its default, and the same in memory.
struct KeyCase {
    const char* key;
    const char* text;
    void (*set)(Options& options);
};

void PrintTo(const KeyCase& keyCase, std::ostream* out) {
    *out << keyCase.key;
}

/// In the order of the file.
const KeyCase keyCases[] = {
    {"ShowReferenceLines", " 0", [](Options& o) { o.showReferenceLines = false; }},
    {"TemplateWithBorder", "-1", [](Options& o) { o.templateWithBorder = true; }},
    {"CircleCompass", " 0", [](Options& o) { o.aids.circleCompass = false; }},
    {"Mode", " 2", [](Options& o) { o.mode = Mode::pause; }},
    {"TransparencyEditMode", " 30", [](Options& o) { o.transparencyEditMode = 30; }},
    {"TransparencyTemplateMode", " 100", [](Options& o) { o.transparencyTemplateMode = 100; }},
    {"Language", " 1031", [](Options& o) { o.language = 1031; }},
    {"EditModeFormHeight", " 8325", [](Options& o) { o.editModeFormHeight = 8325; }},
    {"DefaultAngleMode", " 1", [](Options& o) { o.defaultUnits.AngleMode = 1; }},
    {"DefaultLengthMode", " 2", [](Options& o) { o.defaultUnits.LengthMode = 2; }},
    {"DefaultLengthFactor", " 12", [](Options& o) { o.defaultUnits.LengthFactor = 12; }},
    {"DefaultLengthUnit", "\xB5m", [](Options& o) { o.defaultUnits.LengthUnit = "\u00b5m"; }},
    {"WorksheetColor", " 16711680", [](Options& o) { o.worksheetColor = rgb(0, 0, 255); }},
    {"CrossHairEnabled", "-1", [](Options& o) { o.aids.crossHair = true; }},
    {"GridEnabled", "-1", [](Options& o) { o.aids.grid.enabled = true; }},
    {"GridStyle", " 1", [](Options& o) { o.aids.grid.style = 1; }},
    {"GridLineWidth", " 0", [](Options& o) { o.aids.grid.lineWidth = 0; }},
    {"GridColor", " 255", [](Options& o) { o.aids.grid.color = rgb(255, 0, 0); }},
    {"GridSizeX", " 1", [](Options& o) { o.aids.grid.steps.stepX = 1; }},
    {"GridSizeY", " 75", [](Options& o) { o.aids.grid.steps.stepY = 75; }},
    {"GridOffsetX", "-20", [](Options& o) { o.aids.grid.steps.originX = -20; }},
    {"GridOffsetY", " 33", [](Options& o) { o.aids.grid.steps.originY = 33; }},
    {"LensVisible", "-1", [](Options& o) { o.lensVisible = true; }},
    {"LensFactor", " 10", [](Options& o) { o.lens.factor = 10; }},
    {"LensSticked", "-1", [](Options& o) { o.lens.sticked = true; }},
    {"LensCursorOn", " 0", [](Options& o) { o.lens.cursorOn = false; }},
    {"LensHotSpotOn", " 0", [](Options& o) { o.lens.hotSpotOn = false; }},
    {"LensHotSpotColor", " 65280", [](Options& o) { o.lens.hotSpotColor = rgb(0, 255, 0); }},
    {"LensHotSpotStyle", " 7", [](Options& o) { o.lens.hotSpotStyle = 7; }},
    {"LensHotSpotDrawMode", " 13", [](Options& o) { o.lens.hotSpotDrawMode = 13; }},
    {"LensGridOn", " 0", [](Options& o) { o.lens.gridOn = false; }},
    {"LensGridColor", " 0", [](Options& o) { o.lens.gridColor = 0; }},
    {"LensGridDrawMode", " 6", [](Options& o) { o.lens.gridDrawMode = 6; }},
    {"LensRulTOn", " 0", [](Options& o) { o.lens.topScales = false; }},
    {"LensRulBOn", " 0", [](Options& o) { o.lens.bottomScales = false; }},
    {"LensRulTOrigin", " 3", [](Options& o) { o.lens.topOrigin = 3; }},
    {"LensRulBOrigin", " 2", [](Options& o) { o.lens.bottomOrigin = 2; }},
    {"LogicalPixels", "-1", [](Options& o) { o.logicalPixels = true; }},
};

std::string lineOf(const KeyCase& keyCase) {
    return std::string(keyCase.key) + "=" + keyCase.text + "\r\n";
}

/// The file with every key off its default.
std::string fileOfAllCases() {
    std::string text = "[Options]\r\n";
    for (const KeyCase& keyCase : keyCases) {
        text += lineOf(keyCase);
    }
    return text;
}

Options optionsOfAllCases() {
    Options options;
    for (const KeyCase& keyCase : keyCases) {
        keyCase.set(options);
    }
    return options;
}

class OptionsTest : public testing::Test {
  protected:
    OptionsTest() { file_.setCurrentSection(optionsSection); }

    Options readFrom(const std::string& bytes) {
        ini_.bytes() = bytes;
        file_.setPath(MemoryINIFile::path);
        return readOptions(file_, languageEnglish);
    }
    Options readOne(const std::string& key, const std::string& text) {
        return readFrom("[Options]\r\n" + key + "=" + text + "\r\n");
    }

    ManualLanguage language_{languageEnglish};
    MemoryINIFile ini_;
    INIFile& file_ = ini_.file;
};

class OptionsKeyTest : public OptionsTest, public testing::WithParamInterface<KeyCase> {};

TEST_F(OptionsTest, AMissingFileGivesTheDefaultsWithoutAMessage) {
    EXPECT_EQ(readOptions(file_, languageEnglish), Options{});
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(OptionsTest, TheLanguageOfAFirstStartIsTheGivenOne) {
    EXPECT_EQ(readOptions(file_, languageGerman).language, languageGerman);
    ini_.bytes() = "[Options]\r\nLanguage= 9\r\n";
    file_.setPath(MemoryINIFile::path);
    EXPECT_EQ(readOptions(file_, languageGerman).language, languageEnglish);
}

TEST_F(OptionsTest, TheDefaultsAreThoseOfAFirstStart) {
    writeOptions(file_, Options{});
    EXPECT_EQ(ini_.bytes(),
              "[Options]\r\n"
              "ShowReferenceLines=-1\r\nTemplateWithBorder= 0\r\nCircleCompass=-1\r\nMode= 0\r\n"
              "TransparencyEditMode= 25\r\nTransparencyTemplateMode= 50\r\nLanguage= 9\r\n"
              "EditModeFormHeight= 0\r\nDefaultAngleMode= 0\r\nDefaultLengthMode= 0\r\n"
              "DefaultLengthFactor= 1\r\nDefaultLengthUnit=m\r\nWorksheetColor= 5197647\r\n"
              "CrossHairEnabled= 0\r\nGridEnabled= 0\r\nGridStyle= 2\r\nGridLineWidth= 2\r\n"
              "GridColor= 8224125\r\nGridSizeX= 50\r\nGridSizeY= 50\r\nGridOffsetX= 0\r\n"
              "GridOffsetY= 0\r\nLensVisible= 0\r\nLensFactor= 4\r\nLensSticked= 0\r\n"
              "LensCursorOn=-1\r\nLensHotSpotOn=-1\r\nLensHotSpotColor= 16711680\r\n"
              "LensHotSpotStyle= 2\r\nLensHotSpotDrawMode= 9\r\nLensGridOn=-1\r\n"
              "LensGridColor= 12566463\r\nLensGridDrawMode= 9\r\nLensRulTOn=-1\r\n"
              "LensRulBOn=-1\r\nLensRulTOrigin= 0\r\nLensRulBOrigin= 1\r\n"
              "LogicalPixels= 0\r\n");
}

TEST_F(OptionsTest, EveryKeyIsWrittenInItsOrderAndForm) {
    writeOptions(file_, optionsOfAllCases());
    EXPECT_EQ(ini_.bytes(), fileOfAllCases());
}

TEST_F(OptionsTest, WhatWasWrittenIsReadBack) {
    writeOptions(file_, optionsOfAllCases());
    EXPECT_EQ(readOptions(file_, languageEnglish), optionsOfAllCases());
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(OptionsTest, ALengthFactorWithAFractionComesBackAsTheNearestWholeNumber) {
    Options options;
    options.defaultUnits.LengthFactor = 2.7;
    writeOptions(file_, options);
    EXPECT_EQ(readOptions(file_, languageEnglish).defaultUnits.LengthFactor, 3);
    options.defaultUnits.LengthFactor = 2.4;
    writeOptions(file_, options);
    EXPECT_EQ(readOptions(file_, languageEnglish).defaultUnits.LengthFactor, 2);
}

TEST_F(OptionsTest, ALengthFactorLargerThanOtherNumbersComesBack) {
    Options options;
    options.defaultUnits.LengthFactor = 3e9;
    writeOptions(file_, options);
    EXPECT_EQ(readOptions(file_, languageEnglish).defaultUnits.LengthFactor, 3e9);
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(OptionsTest, AnyNumberButZeroReadsAsTrue) {
    EXPECT_TRUE(readOne("GridEnabled", " 1").aids.grid.enabled);
    EXPECT_TRUE(readOne("GridEnabled", "-7").aids.grid.enabled);
    EXPECT_FALSE(readOne("GridEnabled", " 0").aids.grid.enabled);
}

TEST_F(OptionsTest, ATextReadsAsZero) {
    EXPECT_FALSE(readOne("CircleCompass", "yes").aids.circleCompass);
    EXPECT_EQ(readOne("TransparencyEditMode", "much").transparencyEditMode, 0);
    EXPECT_EQ(readOne("GridColor", "red").aids.grid.color, 0);
    EXPECT_EQ(readOne("GridOffsetX", "left").aids.grid.steps.originX, 0);
}

TEST_F(OptionsTest, AnEmptyValueGivesTheDefaultAndLeavesAMessage) {
    EXPECT_EQ(readOne("TransparencyEditMode", "").transparencyEditMode, 25);
    EXPECT_EQ(file_.LastError(), std::string("Failed to load file '") + MemoryINIFile::path + "'.");
}

TEST_F(OptionsTest, AUnitMayBeEmpty) {
    EXPECT_EQ(readOne("DefaultLengthUnit", "").defaultUnits.LengthUnit, "");
    EXPECT_EQ(file_.LastError(), "");
    Options options;
    options.defaultUnits.LengthUnit = "";
    writeOptions(file_, options);
    EXPECT_EQ(readOptions(file_, languageEnglish).defaultUnits.LengthUnit, "");
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(OptionsTest, ANumberOutsideTheRangeGivesTheDefaultAndLeavesAMessage) {
    EXPECT_EQ(readOne("GridSizeX", "99999999999").aids.grid.steps.stepX, 50);
    EXPECT_NE(file_.LastError(), "");
    EXPECT_EQ(readOne("EditModeFormHeight", "1E999").editModeFormHeight, 0);
    EXPECT_NE(file_.LastError(), "");
}

TEST_F(OptionsTest, AModeThatThereIsNotBecomesEditMode) {
    EXPECT_EQ(readOne("Mode", " 7").mode, Mode::edit);
    EXPECT_EQ(readOne("Mode", "-1").mode, Mode::edit);
    EXPECT_EQ(readOne("Mode", " 3").mode, Mode::edit);
    EXPECT_EQ(readOne("Mode", " 1").mode, Mode::templateMode);
}

TEST_F(OptionsTest, ATransparencyStaysAPercentage) {
    EXPECT_EQ(readOne("TransparencyEditMode", " 400").transparencyEditMode, 100);
    EXPECT_EQ(readOne("TransparencyEditMode", "-3").transparencyEditMode, 0);
    EXPECT_EQ(readOne("TransparencyTemplateMode", " 101").transparencyTemplateMode, 100);
    EXPECT_EQ(readOne("TransparencyTemplateMode", "-100").transparencyTemplateMode, 0);
}

TEST_F(OptionsTest, AGridWithoutAStepGetsTheFirstOne) {
    EXPECT_EQ(readOne("GridSizeX", " 0").aids.grid.steps.stepX, 50);
    EXPECT_EQ(readOne("GridSizeX", "-5").aids.grid.steps.stepX, 50);
    EXPECT_EQ(readOne("GridSizeY", " 0").aids.grid.steps.stepY, 50);
    EXPECT_EQ(readOne("GridSizeY", "word").aids.grid.steps.stepY, 50);
    EXPECT_EQ(readOne("GridSizeY", " .4").aids.grid.steps.stepY, 50);
}

TEST_F(OptionsTest, ALengthFactorThatIsNotPositiveBecomesOne) {
    EXPECT_EQ(readOne("DefaultLengthFactor", " 0").defaultUnits.LengthFactor, 1);
    EXPECT_EQ(readOne("DefaultLengthFactor", "-2").defaultUnits.LengthFactor, 1);
    EXPECT_EQ(readOne("DefaultLengthFactor", "x").defaultUnits.LengthFactor, 1);
}

TEST_F(OptionsTest, AMagnificationStaysBetweenOneAndTen) {
    EXPECT_EQ(readOne("LensFactor", " 0").lens.factor, 1);
    EXPECT_EQ(readOne("LensFactor", " 11").lens.factor, 10);
}

TEST_F(OptionsTest, FractionsAreRounded) {
    EXPECT_EQ(readOne("GridSizeX", " 12.5").aids.grid.steps.stepX, 13);
    EXPECT_EQ(readOne("GridOffsetX", "-12.5").aids.grid.steps.originX, -13);
}

TEST_F(OptionsTest, WritingKeepsWhatItDoesNotKnow) {
    readFrom("[FormSettings]\r\nLeft= 12\r\n[Options]\r\nFuture=abc\r\nMode=seven\r\n");
    writeOptions(file_, Options{});
    EXPECT_EQ(ini_.bytes().find("[FormSettings]\r\nLeft= 12\r\n[Options]\r\nFuture=abc\r\n"
                                "Mode= 0\r\n"),
              0U);
}

TEST_P(OptionsKeyTest, AKeyIsReadByItself) {
    Options expected;
    GetParam().set(expected);
    ASSERT_NE(expected, Options{});
    EXPECT_EQ(readFrom("[Options]\r\n" + lineOf(GetParam())), expected);
}

TEST_P(OptionsKeyTest, AKeyThatIsNotThereHasItsDefault) {
    std::string bytes = fileOfAllCases();
    const std::string line = lineOf(GetParam());
    bytes.erase(bytes.find(line), line.size());
    const Options read = readFrom(bytes);
    EXPECT_NE(read, optionsOfAllCases());
    Options rest = read;
    GetParam().set(rest);
    EXPECT_EQ(rest, optionsOfAllCases());
}

TEST_P(OptionsKeyTest, ADamagedValueLosesNoOtherKey) {
    const std::string line = lineOf(GetParam());
    for (const char* damage :
         {"", "abc", "-", "99999999999", "-99999999999", "1E999", "nan", "\""}) {
        std::string bytes = fileOfAllCases();
        bytes.replace(bytes.find(line), line.size(),
                      std::string(GetParam().key) + "=" + damage + "\r\n");
        Options rest = readFrom(bytes);
        GetParam().set(rest);
        EXPECT_EQ(rest, optionsOfAllCases()) << damage;
    }
}

TEST_P(OptionsKeyTest, AChangeOfOneValueWritesOneOtherLine) {
    Options options;
    GetParam().set(options);
    writeOptions(file_, Options{});
    const std::string former = ini_.bytes();
    writeOptions(file_, options);
    const std::string& present = ini_.bytes();
    const auto at = present.find("\r\n" + lineOf(GetParam()));
    ASSERT_NE(at, std::string::npos);
    const auto end = at + 2 + lineOf(GetParam()).size();
    EXPECT_EQ(former.substr(0, at), present.substr(0, at));
    EXPECT_TRUE(former.ends_with(present.substr(end)));
}

INSTANTIATE_TEST_SUITE_P(Every, OptionsKeyTest, testing::ValuesIn(keyCases),
                         [](const auto& test) { return std::string(test.param.key); });

TEST(OptionsFile, HasTheSameBytesUnderALocaleWithADecimalComma) {
    Options options;
    options.defaultUnits.LengthFactor = 12345;
    MemoryINIFile file;
    writeOptions(file.file, options);
    MemoryINIFile underComma;
    const DecimalComma comma;
    writeOptions(underComma.file, options);
    EXPECT_EQ(underComma.bytes(), file.bytes());
    EXPECT_EQ(readOptions(underComma.file, 9), options);
}

}  // namespace
}  // namespace ormala
