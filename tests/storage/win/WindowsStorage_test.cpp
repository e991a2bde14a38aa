#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "storage/INIFile.h"
#include "storage/win/SpecialFolder.h"
#include "storage/win/TemporaryFolder.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "support/MemoryMessagePresenter.h"

namespace ormala {
namespace {

TEST(WindowsCodePage, KeepsPlainText) {
    const WindowsCodePage codePage;
    EXPECT_EQ(codePage.bytesFromUtf8("Key= 12.5"), "Key= 12.5");
    EXPECT_EQ(codePage.utf8FromBytes("Key= 12.5"), "Key= 12.5");
    EXPECT_EQ(codePage.bytesFromUtf8(""), "");
    EXPECT_EQ(codePage.utf8FromBytes(""), "");
}

TEST(WindowsCodePage, GivesTheSystemsBytesForLettersOfTheWest) {
    if (GetACP() == 1252) {
        const WindowsCodePage codePage;
        EXPECT_EQ(codePage.bytesFromUtf8("\u00b5\u00fc\u20ac"), "\xB5\xFC\x80");
        EXPECT_EQ(codePage.utf8FromBytes("\xB5\xFC\x80"), "\u00b5\u00fc\u20ac");
    }
}

TEST(WindowsCodePage, HasAnAnswerForEveryByteAndCharacter) {
    const WindowsCodePage codePage;
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_NE(codePage.utf8FromBytes(std::string(1, static_cast<char>(byte))), "") << byte;
    }
    EXPECT_NE(codePage.bytesFromUtf8("\u6f22"), "");
}

TEST(GetSpecialFolder, KnowsTheApplicationData) {
    const std::string folder = GetSpecialFolder(folderApplicationData);
    EXPECT_GT(folder.size(), 3U);
    EXPECT_EQ(folder.substr(1, 2), ":\\");
    EXPECT_EQ(folder.find('\0'), std::string::npos);
}

TEST(GetSpecialFolder, IsEmptyForAnUnknownNumber) {
    EXPECT_EQ(GetSpecialFolder(0x7FF), "");
}

TEST(WindowsINIFile, KeepsValuesOnTheDisk) {
    const TemporaryFolder folder;
    WindowsFileStore store;
    const WindowsCodePage codePage;
    MemoryMessagePresenter presenter;
    INIFile file(store, codePage, presenter);
    file.setPath(folder.path("\u03a9.OM"));
    file.setCurrentSection("Tool 1");
    {
        const auto group = file.group();
        file.setDoubleValue("RectBoundTop", -3.25);
        file.setStringValue("Unit", " mm ");
    }
    file.setLongValue("Type", 1);
    EXPECT_EQ(file.DoubleValue("RectBoundTop", 10), -3.25);
    EXPECT_EQ(file.StringValue("Unit", "-"), "mm");
    EXPECT_EQ(store.read(file.Path()).bytes,
              "[Tool 1]\r\nRectBoundTop=-3.25\r\nUnit= mm \r\nType= 1\r\n");
    file.Delete();
    EXPECT_EQ(file.LastError(), "");
    EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace ormala
