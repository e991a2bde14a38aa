#include "support/HelpStatements.h"

#include <gtest/gtest.h>

// The help is read as a reader sees it, and a statement that does not hold is found.

namespace ormala {
namespace {

TEST(HelpText, IsWhatAReaderSees) {
    EXPECT_EQ(
        readableText("<p class=\"lead\">Press <kbd>F4</kbd>. The\n<em>veil</em>\r\ngoes.</p>"),
        "Press F4. The veil goes.");
    EXPECT_EQ(readableText("<tr><th>1:2</th><td>2:1</td></tr><tr><td>0.5</td></tr>"),
              "1:2 2:1 0.5");
}

TEST(HelpText, HasBothLanguages) {
    EXPECT_NE(helpText().find("The worksheet and its frame"), std::string::npos);
    EXPECT_NE(helpText().find("Das Arbeitsblatt und sein Rahmen"), std::string::npos);
}

}  // namespace
}  // namespace ormala
