#include "language/LanguageSupport.h"

#include <gtest/gtest.h>

#include <string>

#include "language/clsGlobalEvents.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

TEST(LanguageSupport, SubscribersSeeTheNewLanguageBeforeTheChangeReturns) {
    const ManualLanguage language(languageEnglish);
    std::string caption = MlString(207, "");
    const auto subscription =
        GetLanguageSupport().LanguageChange.subscribe([&] { caption = MlString(207, ""); });
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(caption, "R\u00fcckg\u00e4ngig");
    GetLanguageSupport().ChangeLanguage(2057);
    EXPECT_EQ(caption, "Undo");
}

TEST(LanguageSupport, IsOneObjectForAll) {
    EXPECT_EQ(&GetLanguageSupport(), &GetLanguageSupport());
}

TEST(LanguageSupport, SettingTheLanguageAloneTellsNobody) {
    const ManualLanguage language(languageEnglish);
    int calls = 0;
    const auto subscription = GetLanguageSupport().LanguageChange.subscribe([&] { ++calls; });
    MlSetLanguage(languageGerman, "");
    EXPECT_EQ(calls, 0);
}

TEST(clsGlobalEvents, CarriesTheFontSizeToItsSubscribers) {
    const clsGlobalEvents events;
    clsGlobalEvents raised;
    int size = 0;
    const auto subscription = raised.FontSizeChange.subscribe([&](int points) { size = points; });
    events.ChangeFontSize(8);
    EXPECT_EQ(size, 0);
    raised.ChangeFontSize(9);
    EXPECT_EQ(size, 9);
}

}  // namespace
}  // namespace ormala
