#include "app/programFailure.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <system_error>

#include "support/ManualLanguage.h"

namespace ormala {
namespace {

constexpr int outOfHandles = 1158;

std::string systemText(int error) {
    return error == outOfHandles ? "No handles left." : std::string();
}

TEST(ProgramFailure, NamesTheWindowAndWhatTheSystemSaysOfIt) {
    const ManualLanguage language(languageEnglish);
    const std::system_error failure(outOfHandles, std::system_category(), "frmLens");
    EXPECT_EQ(programFailureText(failure, systemText),
              "Ormala has to quit, since something that it needs is missing:\r\n"
              "frmLens: No handles left.");
}

TEST(ProgramFailure, NamesTheWindowAloneWhereTheSystemIsSilent) {
    const ManualLanguage language(languageEnglish);
    const std::system_error failure(0, std::system_category(), "frmLens");
    EXPECT_EQ(programFailureText(failure, systemText),
              "Ormala has to quit, since something that it needs is missing:\r\nfrmLens");
}

TEST(ProgramFailure, CallsMemoryByItsName) {
    const ManualLanguage language(languageGerman);
    EXPECT_EQ(programFailureText(std::bad_alloc(), systemText),
              "Ormala muss beendet werden, weil etwas fehlt, das es braucht:\r\nArbeitsspeicher");
}

TEST(ProgramFailure, TakesTheWordsOfAnyOtherFailure) {
    const ManualLanguage language(languageEnglish);
    EXPECT_EQ(programFailureText(std::runtime_error("the table of patterns"), systemText),
              "Ormala has to quit, since something that it needs is missing:\r\n"
              "the table of patterns");
}

}  // namespace
}  // namespace ormala
