#include "app/programFiles.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(ProgramFiles, TheOptionsFileLiesInAFolderOfTheProgram) {
    EXPECT_EQ(optionsFilePath("C:\\Users\\J\u00f6rg\\AppData\\Roaming"),
              "C:\\Users\\J\u00f6rg\\AppData\\Roaming\\Ormala\\Ormala.ini");
}

TEST(ProgramFiles, TheToolsOfTheLastRunLieBesideTheOptions) {
    EXPECT_EQ(toolsFilePath("C:\\Users\\J\u00f6rg\\AppData\\Roaming"),
              "C:\\Users\\J\u00f6rg\\AppData\\Roaming\\Ormala\\Ormala Tools.ini");
}

}  // namespace
}  // namespace ormala
