#include "dialogs/ProgramFacts.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "language/productAddresses.h"

namespace ormala {
namespace {

TEST(ProgramFacts, TakesTheAddressesThatTheProgramWasBuiltWith) {
    MlSetLanguage(languageGerman, {});
    const ProgramFacts facts = programFacts("Ormala", "1.2.3");
    EXPECT_EQ(facts.title, "Ormala");
    EXPECT_EQ(facts.version, "1.2.3");
    EXPECT_EQ(facts.webAddress, productWebAddress);
    EXPECT_EQ(facts.mailAddress, productMailAddress);
    MlSetLanguage(languageEnglish, {});
}

TEST(MailLink, HasTitleAndVersionAsItsSubject) {
    const ProgramFacts facts{"Ormala", "1.2.3", {}, "author@example.org"};
    EXPECT_EQ(mailLink(facts), "mailto:author@example.org?subject=Ormala%201.2.3");
}

TEST(MailLink, EncodesWhatHasAMeaningInLinks) {
    const ProgramFacts facts{"A&B ü", "1?", {}, "a@b"};
    EXPECT_EQ(mailLink(facts), "mailto:a@b?subject=A%26B%20%C3%BC%201%3F");
}

}  // namespace
}  // namespace ormala
