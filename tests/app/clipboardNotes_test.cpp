#include "app/clipboardNotes.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

TEST(ShotNote, TellsHowMuchWasCopied) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(shotNote(ClipboardAnswer::taken, {1082, 803}),
              "1082 x 803 pixels copied to the clipboard");
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(shotNote(ClipboardAnswer::taken, {1082, 803}),
              "1082 x 803 Pixel in die Zwischenablage kopiert");
}

TEST(ShotNote, TellsWhatWentWrong) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(shotNote(ClipboardAnswer::held, {1082, 803}),
              "The clipboard is in use by another program.");
    EXPECT_EQ(shotNote(ClipboardAnswer::refused, {1082, 803}),
              "The screen shot could not be taken.");
}

TEST(CopyNote, TellsHowManyValuesWereCopied) {
    const ManualLanguage english(languageEnglish);
    const TextCopy copy = copyOfReadOuts("Size W\t201\r\nSize H\t134");
    EXPECT_EQ(copy.text, "Size W\t201\r\nSize H\t134");
    EXPECT_EQ(copyNote(ClipboardAnswer::taken, copy), "2 values copied to the clipboard");
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(copyNote(ClipboardAnswer::taken, copyOfReadOuts("a\t1\r\nb\t2\r\nc\t3")),
              "3 Werte in die Zwischenablage kopiert");
}

TEST(CopyNote, TellsTheColorThatWasCopied) {
    const ManualLanguage english(languageEnglish);
    const TextCopy copy = copyOfColor(rgb(0x12, 0xAB, 0x0F));
    EXPECT_EQ(copy.text, "#12AB0F");
    EXPECT_EQ(copyNote(ClipboardAnswer::taken, copy), "#12AB0F copied to the clipboard");
}

TEST(CopyNote, TellsWhatWentWrong) {
    const ManualLanguage english(languageEnglish);
    const TextCopy copy = copyOfColor(0);
    EXPECT_EQ(copyNote(ClipboardAnswer::held, copy), "The clipboard is in use by another program.");
    EXPECT_EQ(copyNote(ClipboardAnswer::refused, copy), "Nothing could be put on the clipboard.");
}

}  // namespace
}  // namespace ormala
