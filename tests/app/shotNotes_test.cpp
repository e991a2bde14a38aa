#include "app/shotNotes.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

TEST(ShotNote, TellsHowMuchWasCopied) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(shotNote(ShotOutcome::copied, {1082, 803}),
              "1082 x 803 pixels copied to the clipboard");
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(shotNote(ShotOutcome::copied, {1082, 803}),
              "1082 x 803 Pixel in die Zwischenablage kopiert");
}

TEST(ShotNote, TellsWhatWentWrong) {
    const ManualLanguage english(languageEnglish);
    EXPECT_EQ(shotNote(ShotOutcome::held, {1082, 803}),
              "The clipboard is in use by another program.");
    EXPECT_EQ(shotNote(ShotOutcome::failed, {1082, 803}), "The screen shot could not be taken.");
}

}  // namespace
}  // namespace ormala
