#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "e2e/support/Program.h"

namespace ormala::test {
namespace {

std::filesystem::path programFile() {
    return testProgramFolder() / "../../Ormala.exe";
}

/// The program's file as it is laid out on the disk.
class ReleaseFile : public testing::Test {
  protected:
    ReleaseFile() {
        std::ifstream stream(programFile(), std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(stream), {});
        const auto* dos = at<IMAGE_DOS_HEADER>(0);
        headersAt_ = static_cast<std::size_t>(dos->e_lfanew);
        headers_ = at<IMAGE_NT_HEADERS64>(headersAt_);
    }

    template <typename T>
    const T* at(std::size_t offset) const {
        return reinterpret_cast<const T*>(bytes_.data() + offset);
    }

    std::size_t offsetOf(DWORD address) const {
        const auto* section = at<IMAGE_SECTION_HEADER>(headersAt_ + sizeof(IMAGE_NT_HEADERS64));
        for (int i = 0; i < headers_->FileHeader.NumberOfSections; ++i, ++section) {
            if (address >= section->VirtualAddress &&
                address < section->VirtualAddress + section->SizeOfRawData) {
                return address - section->VirtualAddress + section->PointerToRawData;
            }
        }
        return 0;
    }

    /// From the libraries that the system loads with the program to what it takes from each.
    std::map<std::string, std::set<std::string>> imports() const {
        std::map<std::string, std::set<std::string>> found;
        const auto& directory =
            headers_->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        const auto* entry = at<IMAGE_IMPORT_DESCRIPTOR>(offsetOf(directory.VirtualAddress));
        for (; entry->Name != 0; ++entry) {
            auto& functions = found[at<char>(offsetOf(entry->Name))];
            const auto* name = at<IMAGE_THUNK_DATA64>(offsetOf(entry->OriginalFirstThunk));
            for (; name->u1.AddressOfData != 0; ++name) {
                if (!IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal)) {
                    const auto address = static_cast<DWORD>(name->u1.AddressOfData);
                    functions.insert(at<char>(offsetOf(address) + sizeof(WORD)));
                }
            }
        }
        return found;
    }

    std::string bytes_;
    std::size_t headersAt_ = 0;
    const IMAGE_NT_HEADERS64* headers_ = nullptr;
};

TEST_F(ReleaseFile, HasAtMostThreeMegabytes) {
    EXPECT_GT(bytes_.size(), 100U * 1024);
    EXPECT_LE(bytes_.size(), 3U * 1024 * 1024);
}

TEST_F(ReleaseFile, IsAWindowProgramAtNoFixedAddress) {
    EXPECT_EQ(headers_->OptionalHeader.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
    const WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE |
                        IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA |
                        IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
    EXPECT_EQ(headers_->OptionalHeader.DllCharacteristics & wanted, wanted);
    EXPECT_NE(headers_->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size, 0U);
}

TEST_F(ReleaseFile, ImportsOnlyWhatWindowsNeverTakesFromTheProgramsFolder) {
    // The system's list of known libraries; the manifest gives the common controls a place of their
    // own.
    const std::set<std::string> known{"ADVAPI32.dll", "COMCTL32.dll", "comdlg32.dll", "GDI32.dll",
                                      "IMM32.dll",    "KERNEL32.dll", "msvcrt.dll",   "ole32.dll",
                                      "OLEAUT32.dll", "SHELL32.dll",  "SHLWAPI.dll",  "USER32.dll"};
    const auto libraries = imports();
    EXPECT_FALSE(libraries.empty());
    for (const auto& [library, functions] : libraries) {
        // The system finds these by a table of its own, and no file of such a name.
        const bool isApiSet = library.starts_with("api-ms-win-");
        EXPECT_TRUE(known.contains(library) || isApiSet) << library;
        EXPECT_FALSE(functions.empty()) << library;
    }
}

TEST_F(ReleaseFile, LoadsWhatElseItNeedsFromTheSystemsFolder) {
    const auto functions = imports()["KERNEL32.dll"];
    EXPECT_TRUE(functions.contains("SetDefaultDllDirectories"));
    EXPECT_TRUE(functions.contains("LoadLibraryExW"));
}

TEST_F(ReleaseFile, AsksToBeStartedAgainAfterAnUpdate) {
    EXPECT_TRUE(imports()["KERNEL32.dll"].contains("RegisterApplicationRestart"));
}

TEST_F(ReleaseFile, RunsOnWindows10AndLaterOnly) {
    EXPECT_EQ(headers_->OptionalHeader.MajorSubsystemVersion, 10);
    EXPECT_EQ(headers_->OptionalHeader.MinorSubsystemVersion, 0);
    EXPECT_EQ(headers_->OptionalHeader.MajorOperatingSystemVersion, 10);
    std::size_t systems = 0;
    const std::string mark = "<supportedOS ";
    for (auto at = bytes_.find(mark); at != std::string::npos; at = bytes_.find(mark, at + 1)) {
        ++systems;
    }
    EXPECT_EQ(systems, 1U);
    EXPECT_NE(bytes_.find("<supportedOS Id=\"{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}\""),
              std::string::npos);
}

TEST_F(ReleaseFile, GuardsItsReturnAddresses) {
    EXPECT_NE(bytes_.find("stack smashing detected"), std::string::npos);
}

TEST_F(ReleaseFile, AsksForPerMonitorResolutionAndCommonControls6) {
    EXPECT_NE(bytes_.find("PerMonitorV2"), std::string::npos);
    EXPECT_NE(bytes_.find("Microsoft.Windows.Common-Controls"), std::string::npos);
}

TEST_F(ReleaseFile, TellsItsVersion) {
    const std::wstring path = programFile().wstring();
    DWORD handle = 0;
    std::vector<char> data(GetFileVersionInfoSizeW(path.c_str(), &handle));
    ASSERT_FALSE(data.empty());
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(data.size()), data.data()));
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(data.data(), L"\\", &found, &size));
    const auto* version = static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(version->dwProductVersionMS, MAKELONG(ORMALA_VERSION_MINOR, ORMALA_VERSION_MAJOR));
    EXPECT_EQ(HIWORD(version->dwProductVersionLS), ORMALA_VERSION_PATCH);
}

}  // namespace
}  // namespace ormala::test
