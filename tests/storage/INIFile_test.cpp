#include "storage/INIFile.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/ManualLanguage.h"
#include "support/MemoryINIFile.h"

namespace ormala {
namespace {

constexpr std::int32_t longMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t longMin = std::numeric_limits<std::int32_t>::min();
const std::string deniedDelete =
    std::string("Failed to clear file '") + MemoryINIFile::path + "'. Access is denied.";

class INIFileTest : public testing::Test {
  protected:
    void store(const std::string& value) { ini_.bytes() = "[S]\r\nKey=" + value + "\r\n"; }
    void expectError(const std::string& begin) const {
        EXPECT_EQ(ini_.file.LastError(), begin + MemoryINIFile::path + "'.");
    }

    ManualLanguage language_{languageEnglish};
    MemoryINIFile ini_;
    INIFile& file_ = ini_.file;
};

TEST_F(INIFileTest, NewObjectHasNoPathAndOneEmptySection) {
    const INIFile fresh(ini_.store, ini_.codePage, ini_.presenter);
    EXPECT_EQ(fresh.Path(), "");
    EXPECT_EQ(fresh.CurrentSection(), "");
    EXPECT_EQ(fresh.LastError(), "");
    EXPECT_EQ(fresh.SectionMax(), 0);
    EXPECT_EQ(fresh.SectionName(0), "");
}

TEST_F(INIFileTest, MissingFileHasOneEmptySection) {
    EXPECT_EQ(file_.SectionMax(), 0);
    EXPECT_EQ(file_.SectionName(0), "");
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, ListsTheSectionsOfTheFile) {
    ini_.bytes() = "[General]\r\n[Tool 1]\r\n[Tool \xFC]\r\n";
    file_.setPath(MemoryINIFile::path);
    EXPECT_EQ(file_.SectionMax(), 2);
    EXPECT_EQ(file_.SectionName(0), "General");
    EXPECT_EQ(file_.SectionName(2), "Tool \u00fc");
}

TEST_F(INIFileTest, SectionIndexOutsideTheListGivesAnEmptyName) {
    ini_.bytes() = "[A]\r\n";
    file_.setPath(MemoryINIFile::path);
    EXPECT_EQ(file_.SectionName(-1), "");
    EXPECT_EQ(file_.SectionName(1), "");
    EXPECT_EQ(file_.SectionName(longMin), "");
    EXPECT_EQ(file_.SectionName(longMax), "");
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, SectionListIsASnapshotOfTheLastPathAssignment) {
    file_.setStringValue("Key", "x");
    EXPECT_EQ(file_.SectionName(0), "");
    file_.setPath(std::string(file_.Path()));
    EXPECT_EQ(file_.SectionName(0), "S");
    file_.setPath("");
    EXPECT_EQ(file_.SectionMax(), 0);
    EXPECT_EQ(file_.SectionName(0), "");
}

TEST_F(INIFileTest, SectionListHasEverySectionOfALargeFile) {
    for (int i = 0; i < 40000; ++i) {
        ini_.bytes() += "[Tool " + std::to_string(i) + "]\r\n";
    }
    file_.setPath(MemoryINIFile::path);
    EXPECT_EQ(file_.SectionMax(), 39999);
    EXPECT_EQ(file_.SectionName(39999), "Tool 39999");
}

TEST_F(INIFileTest, WithoutPathReadsGiveDefaultsAndWritesDoNothing) {
    file_.setPath("");
    EXPECT_EQ(file_.StringValue("Key", ""), "");
    EXPECT_EQ(file_.StringValue("Key", " d "), " d ");
    EXPECT_EQ(file_.DoubleValue("Key", 2.5), 2.5);
    EXPECT_EQ(file_.LongValue("Key", 7), 7);
    file_.setStringValue("Key", "x");
    EXPECT_EQ(file_.LastError(), "");
    EXPECT_EQ(ini_.store.writes, 0);
}

TEST_F(INIFileTest, WithoutSectionReadsGiveDefaultsAndWritesDoNothing) {
    file_.setCurrentSection("");
    EXPECT_EQ(file_.StringValue("Key", ""), "");
    EXPECT_EQ(file_.DoubleValue("Key", 2.5), 2.5);
    file_.setLongValue("Key", 1);
    EXPECT_EQ(file_.LastError(), "");
    EXPECT_EQ(ini_.store.writes, 0);
}

TEST_F(INIFileTest, EmptyKeyGivesTheDefaultWithoutFailure) {
    EXPECT_EQ(file_.StringValue("", ""), "");
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, MissingKeyWithAnEmptyDefaultLeavesAMessage) {
    EXPECT_EQ(file_.StringValue("Key", ""), "");
    expectError("Failed to load file '");
}

TEST_F(INIFileTest, EmptyValueGivesTheDefaultAndLeavesAMessage) {
    store("");
    EXPECT_EQ(file_.StringValue("Key", "default"), "default");
    expectError("Failed to load file '");
}

TEST_F(INIFileTest, AnEmptyTextIsNoFailureWhereATextMayBeEmpty) {
    store("");
    EXPECT_EQ(file_.TextValue("Key", "m"), "");
    EXPECT_EQ(file_.TextValue("Key", ""), "");
    store("  ");
    EXPECT_EQ(file_.TextValue("Key", "m"), "");
    EXPECT_EQ(file_.LastError(), "");
    store("mm");
    EXPECT_EQ(file_.TextValue("Key", ""), "mm");
    EXPECT_EQ(file_.TextValue("Other", "m"), "m");
    EXPECT_EQ(file_.LastError(), "");
    EXPECT_EQ(file_.TextValue("Other", ""), "");
    expectError("Failed to load file '");
}

TEST_F(INIFileTest, NonEmptyDefaultNeverFails) {
    EXPECT_EQ(file_.StringValue("Key", " default "), "default");
    file_.setPath("C:\\nowhere\\a.ini");
    EXPECT_EQ(file_.StringValue("Key", "default"), "default");
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, TextGoesThroughTheCodePage) {
    file_.setStringValue("Key", "Gr\u00f6\u00dfe \u6f22");
    EXPECT_EQ(ini_.bytes(),
              "[S]\r\nKey=Gr\xF6\xDF"
              "e ?\r\n");
    EXPECT_EQ(file_.StringValue("Key", "-"), "Gr\u00f6\u00dfe ?");
}

TEST_F(INIFileTest, ValuesComeBackCutTo254Characters) {
    store(std::string(300, 'x'));
    EXPECT_EQ(file_.StringValue("Key", "-"), std::string(254, 'x'));
    store(std::string(253, 'x') + "  end");
    EXPECT_EQ(file_.StringValue("Key", "-"), std::string(253, 'x'));
}

TEST_F(INIFileTest, NumbersAreWrittenInTheNumberForm) {
    file_.setDoubleValue("D", 12.5);
    file_.setDoubleValue("F", -0.25);
    file_.setLongValue("L", 1);
    file_.setLongValue("M", longMin);
    EXPECT_EQ(ini_.bytes(), "[S]\r\nD= 12.5\r\nF=-.25\r\nL= 1\r\nM=-2147483648\r\n");
    EXPECT_EQ(file_.DoubleValue("D", 0), 12.5);
    EXPECT_EQ(file_.LongValue("M", 0), longMin);
}

TEST_F(INIFileTest, MissingNumberGivesTheDefaultWithoutFailure) {
    EXPECT_EQ(file_.DoubleValue("Key", 1.5), 1.5);
    EXPECT_EQ(file_.LongValue("Key", longMax), longMax);
    EXPECT_EQ(file_.LongValue("Key", longMin), longMin);
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, DecimalCommaIsNeverRecognised) {
    store("1,5");
    EXPECT_EQ(file_.DoubleValue("Key", 9), 1);
}

TEST_F(INIFileTest, LongValueRoundsHalvesAwayFromZero) {
    store(" 2.5");
    EXPECT_EQ(file_.LongValue("Key", 9), 3);
    store("-2.5");
    EXPECT_EQ(file_.LongValue("Key", 9), -3);
}

TEST_F(INIFileTest, LongValueOfNoNumberIsZero) {
    store("abc");
    EXPECT_EQ(file_.LongValue("Key", 9), 0);
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, LongValueAcceptsItsWholeRange) {
    store("2147483647.4");
    EXPECT_EQ(file_.LongValue("Key", 9), longMax);
    store("-2147483648.4");
    EXPECT_EQ(file_.LongValue("Key", 9), longMin);
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, LongValueBeyondItsRangeGivesTheDefaultAndAMessage) {
    for (const char* const text : {"2147483647.5", "-2147483648.5", "1E+20", "1e999", "-1e999"}) {
        store(text);
        file_.setLastError("");
        EXPECT_EQ(file_.LongValue("Key", 9), 9) << text;
        expectError("Failed to load file '");
    }
}

TEST_F(INIFileTest, DoubleValueTooLargeToBeFiniteGivesTheDefaultAndAMessage) {
    store("1e999");
    EXPECT_EQ(file_.DoubleValue("Key", 2.5), 2.5);
    expectError("Failed to load file '");
}

TEST_F(INIFileTest, FailedWriteLeavesAMessage) {
    ini_.store.fullDisk = true;
    file_.setStringValue("Key", "x");
    expectError("Failed to save file '");
}

TEST_F(INIFileTest, WriteIntoAMissingFolderLeavesAMessage) {
    file_.setPath("C:\\nowhere\\a.ini");
    file_.setLongValue("Key", 1);
    EXPECT_EQ(file_.LastError(), "Failed to save file 'C:\\nowhere\\a.ini'.");
}

TEST_F(INIFileTest, MessagesFollowTheLanguage) {
    const ManualLanguage german(languageGerman);
    ini_.store.fullDisk = true;
    file_.setStringValue("Key", "x");
    expectError("Fehler beim speichern der Datei '");
    file_.StringValue("Key", "");
    expectError("Fehler beim Laden der Datei '");
}

TEST_F(INIFileTest, AssigningAPathClearsTheMessageAndKeepsTheSection) {
    file_.setLastError("pending");
    file_.setPath(MemoryINIFile::path);
    EXPECT_EQ(file_.LastError(), "");
    EXPECT_EQ(file_.CurrentSection(), "S");
}

TEST_F(INIFileTest, ShowLastErrorShowsAMessageOnce) {
    EXPECT_FALSE(file_.ShowLastError());
    EXPECT_TRUE(ini_.presenter.errors.empty());
    file_.StringValue("Key", "");
    file_.setLastError("the last one");
    EXPECT_FALSE(file_.ShowLastError());
    EXPECT_FALSE(file_.ShowLastError());
    EXPECT_EQ(ini_.presenter.errors, std::vector<std::string>{"the last one"});
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, DeleteRemovesTheFile) {
    store("x");
    file_.Delete();
    EXPECT_FALSE(ini_.store.files.contains(MemoryINIFile::path));
    file_.Delete();
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, DeleteThatFailsNamesTheFileAndTheSystemsReason) {
    store("x");
    ini_.store.readOnly = true;
    ini_.store.removeDescription = "Access is denied.";
    file_.Delete();
    EXPECT_EQ(file_.LastError(), deniedDelete);
}

TEST_F(INIFileTest, DeleteThatFailsWithoutWordsLeavesTheProgramsOwn) {
    store("x");
    ini_.store.readOnly = true;
    file_.Delete();
    expectError("Failed to clear file '");
}

TEST_F(INIFileTest, CreateFolderPathLeavesAMissingFolderAlone) {
    file_.setPath("C:\\nowhere\\a.ini");
    file_.CreateFolderPath();
    EXPECT_FALSE(ini_.store.folders.contains("C:\\nowhere"));
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, CreateFolderPathThatFailsLeavesAMessage) {
    ini_.store.fullDisk = true;
    file_.CreateFolderPath();
    expectError("Failed to create folder for file '");
    file_.setLastError("");
    store("x");
    file_.CreateFolderPath();
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileTest, WorksOnAPathOutsideTheCodePage) {
    const std::string path = "C:\\data\\\u6f22\u03a9.OM";
    file_.setPath(path);
    file_.setLongValue("Key", 3);
    EXPECT_EQ(ini_.store.files.at(path), "[S]\r\nKey= 3\r\n");
    ini_.store.fullDisk = true;
    file_.setLongValue("Key", 4);
    EXPECT_EQ(file_.LastError(), "Failed to save file '" + path + "'.");
}

TEST_F(INIFileTest, GroupReadsOnceAndWritesOnceAtItsEnd) {
    ini_.store.reads = 0;
    {
        const auto group = file_.group();
        for (int i = 0; i < 50; ++i) {
            file_.setLongValue("Key " + std::to_string(i), i);
            EXPECT_EQ(file_.LongValue("Key " + std::to_string(i), -1), i);
        }
        file_.setPath(std::string(file_.Path()));
        EXPECT_EQ(file_.SectionName(0), "S");
    }
    EXPECT_EQ(ini_.store.reads, 1);
    EXPECT_EQ(ini_.store.writes, 1);
    EXPECT_EQ(file_.LongValue("Key 49", -1), 49);
}

TEST_F(INIFileTest, GroupThatCantWriteLeavesAMessageAtItsEnd) {
    ini_.store.fullDisk = true;
    {
        const auto group = file_.group();
        file_.setLongValue("Key", 1);
        EXPECT_EQ(file_.LastError(), "");
    }
    expectError("Failed to save file '");
}

TEST_F(INIFileTest, LeavingAFileThatCantBeWrittenLeavesItsMessage) {
    const auto group = file_.group();
    file_.setLongValue("Key", 1);
    ini_.store.fullDisk = true;
    file_.setPath("C:\\data\\other.ini");
    expectError("Failed to save file '");
}

TEST_F(INIFileTest, CurrentSectionGuardPutsTheFormerSectionBack) {
    {
        const CurrentSectionGuard guard(file_, "Other");
        EXPECT_EQ(file_.CurrentSection(), "Other");
    }
    EXPECT_EQ(file_.CurrentSection(), "S");
}

}  // namespace
}  // namespace ormala
