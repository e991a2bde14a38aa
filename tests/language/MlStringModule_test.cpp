#include "language/MlStringModule.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language/TextTable.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

constexpr int unset = 0;

TEST(MlString, IsEmptyBeforeALanguageIsSet) {
    const ManualLanguage language(unset);
    EXPECT_EQ(MlString(207, "Undo"), "");
    EXPECT_EQ(MlString(0, "default"), "");
}

TEST(MlString, GivesEveryRowOfTheCurrentLanguage) {
    for (const auto& [id, rows] :
         {std::pair{languageEnglish, englishTexts()}, std::pair{languageGerman, germanTexts()}}) {
        const ManualLanguage language(id);
        for (const TextRow& row : rows) {
            EXPECT_EQ(MlString(row.id, "default"), row.text) << row.id;
        }
    }
}

TEST(MlString, GivesEnglishTexts) {
    const ManualLanguage language(languageEnglish);
    EXPECT_EQ(MlString(3, ""), "Worksheet background color in edit mode");
    EXPECT_EQ(MlString(18, ""), "Ratio ");
    EXPECT_EQ(MlString(76, ""), "10 X");
    EXPECT_EQ(MlString(114, ""), " \"Hot spot\" mark ");
    EXPECT_EQ(MlString(154, ""), "Pause and minimize.  Shift+F3");
    EXPECT_EQ(MlString(239, ""), "'.");
    EXPECT_EQ(MlString(243, ""), "Magnifier ");
    EXPECT_EQ(MlString(324, ""), "  ratio = ");
    EXPECT_EQ(MlString(378, ""), "Removing all tools...");
}

TEST(MlString, GivesGermanTexts) {
    const ManualLanguage language(languageGerman);
    EXPECT_EQ(MlString(3, ""), "Hintergrundfarbe des Arbeitsblatt-Fensters im Bearbeitungsmodus");
    EXPECT_EQ(MlString(18, ""), "Verh\u00e4ltnis ");
    EXPECT_EQ(MlString(40, ""), "Mittelpunkt");
    EXPECT_EQ(MlString(79, ""), "\"Hotspot\"-Markierung sichtbar");
    EXPECT_EQ(MlString(141, ""), "Grad (\u00b0)");
    EXPECT_EQ(MlString(243, ""), "Lupe ");
    EXPECT_EQ(MlString(316, ""), "Ormala-Datei (* .OM)");
    EXPECT_EQ(MlString(378, ""), "Entferne alle Werkzeuge...");
}

TEST(MlString, RowsThatShareAGermanTextDifferInEnglish) {
    const ManualLanguage language(languageGerman);
    EXPECT_EQ(MlString(61, ""), MlString(162, ""));
    MlSetLanguage(languageEnglish, "");
    EXPECT_NE(MlString(61, ""), MlString(162, ""));
}

TEST(MlString, EmptyRowsStayEmptyWhateverTheDefault) {
    for (const int id : {languageEnglish, languageGerman}) {
        const ManualLanguage language(id);
        for (const int row : {115, 237, 347}) {
            EXPECT_EQ(MlString(row, "default"), "") << row;
        }
    }
}

TEST(MlString, IdOutsideTheEnglishTableGivesTheDefault) {
    const ManualLanguage language(languageEnglish);
    for (const int id : {0, 429, -1, 1, 379, 2147483647}) {
        EXPECT_EQ(MlString(id, "default"), "default") << id;
    }
}

TEST(MlString, IdWithoutGermanTextGivesTheDefault) {
    const ManualLanguage language(languageGerman);
    for (const int id : {379, 67, 101, 0, -5}) {
        EXPECT_EQ(MlString(id, "default"), "default") << id;
    }
}

TEST(MlSetLanguage, UnknownLanguageGivesEnglish) {
    const ManualLanguage language(unset);
    MlSetLanguage(2057, "");
    EXPECT_EQ(CurrentLanguage(), languageEnglish);
    MlSetLanguage(1031, "");
    EXPECT_EQ(CurrentLanguage(), languageGerman);
    MlSetLanguage(0, "");
    EXPECT_EQ(CurrentLanguage(), languageEnglish);
}

TEST(MlSetLanguage, DoesNotReadItsSecondArgument) {
    const ManualLanguage language(unset);
    MlSetLanguage(languageGerman, "anything");
    EXPECT_EQ(CurrentLanguage(), languageGerman);
}

TEST(MlSetLanguage, EnglishOverwritesEveryGermanTextButNotTheReverse) {
    const ManualLanguage language(unset);
    std::string caption = "design";
    const auto relabel = [&caption](int row) {
        const std::string text = MlString(row, "");
        caption = text.empty() ? caption : text;
    };
    MlSetLanguage(languageEnglish, "");
    relabel(67);
    MlSetLanguage(languageGerman, "");
    relabel(67);
    EXPECT_EQ(caption, "1 X");
    relabel(207);
    MlSetLanguage(languageEnglish, "");
    relabel(207);
    EXPECT_EQ(caption, "Undo");
}

TEST(MlLanguages, ListsEnglishThenGerman) {
    EXPECT_EQ(MlLanguages(), (std::vector{9, 1031}));
}

TEST(MlFormat, ExpandsLineBreaksWithoutArguments) {
    EXPECT_EQ(MlFormat("a%nb%n", {}), "a\r\nb\r\n");
}

TEST(MlFormat, ReplacesEveryPlaceOfAnArgument) {
    const std::vector<std::string> args{"7"};
    EXPECT_EQ(MlFormat("%0 and %0", args), "7 and 7");
    EXPECT_EQ(MlFormat("Remove measurement tool %0", args), "Remove measurement tool 7");
}

TEST(MlFormat, ReplacesLaterPlaceholdersInsideAnArgument) {
    const std::vector<std::string> args{"<%1>", "inner"};
    EXPECT_EQ(MlFormat("%0", args), "<inner>");
}

TEST(MlFormat, LeavesEarlierPlaceholdersAndLineBreaksInsideAnArgument) {
    const std::vector<std::string> args{"%n", "%0"};
    EXPECT_EQ(MlFormat("%0 %1", args), "%n %0");
}

TEST(MlFormat, ArgumentThatHoldsItsOwnPlaceholderIsInsertedOnce) {
    const std::vector<std::string> args{"%0%0"};
    EXPECT_EQ(MlFormat("[%0]", args), "[%0%0]");
}

TEST(MlFormat, LeavesPlaceholdersWithoutArgument) {
    const std::vector<std::string> args{"x"};
    EXPECT_EQ(MlFormat("%0 %1 %", args), "x %1 %");
}

TEST(LanguageForLocaleName, FindsGermanAnywhereInAnyCase) {
    EXPECT_EQ(languageForLocaleName("German"), 1031);
    EXPECT_EQ(languageForLocaleName("Swiss GERMAN (Alemannic)"), 1031);
    EXPECT_EQ(languageForLocaleName("gErMaN"), 1031);
}

TEST(LanguageForLocaleName, GivesEnglishForAllElse) {
    EXPECT_EQ(languageForLocaleName("English"), 9);
    EXPECT_EQ(languageForLocaleName("Ger man"), 9);
    EXPECT_EQ(languageForLocaleName(""), 9);
}

}  // namespace
}  // namespace ormala
