#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
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

    std::vector<std::string> importedLibraries() const {
        std::vector<std::string> names;
        const auto& directory =
            headers_->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        const auto* entry = at<IMAGE_IMPORT_DESCRIPTOR>(offsetOf(directory.VirtualAddress));
        for (; entry->Name != 0; ++entry) {
            names.emplace_back(at<char>(offsetOf(entry->Name)));
        }
        return names;
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

TEST_F(ReleaseFile, NeedsNothingButWindowsItself) {
    const std::vector<std::string> ofWindows{
        "ADVAPI32.dll", "COMCTL32.dll", "comdlg32.dll", "dwmapi.dll", "GDI32.dll",
        "IMM32.dll",    "KERNEL32.dll", "msvcrt.dll",   "ole32.dll",  "OLEACC.dll",
        "OLEAUT32.dll", "SHELL32.dll",  "SHLWAPI.dll",  "USER32.dll"};
    const auto libraries = importedLibraries();
    EXPECT_FALSE(libraries.empty());
    for (const std::string& library : libraries) {
        // The run-time library of C that belongs to Windows 10 has many parts.
        EXPECT_TRUE(library.starts_with("api-ms-win-crt-") ||
                    std::ranges::find(ofWindows, library) != ofWindows.end())
            << library;
    }
}

TEST_F(ReleaseFile, AsksForPerMonitorResolutionAndCommonControls6) {
    EXPECT_NE(bytes_.find("PerMonitorV2"), std::string::npos);
    EXPECT_NE(bytes_.find("Microsoft.Windows.Common-Controls"), std::string::npos);
    EXPECT_NE(bytes_.find("8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a"), std::string::npos);
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
