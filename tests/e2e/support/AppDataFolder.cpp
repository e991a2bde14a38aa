#include "e2e/support/AppDataFolder.h"

#include <windows.h>
// Needs what windows.h declares.
#include <shlobj.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace ormala::test {

namespace {

constexpr const wchar_t* shellKey =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
constexpr const wchar_t* keptKey = L"Software\\Ormala End-to-end Tests";
constexpr const wchar_t* valueName = L"AppData";

/// A value of the user's registry, or that there is none.
struct RegistryValue {
    DWORD type = REG_NONE;
    std::vector<BYTE> bytes;
};

std::optional<RegistryValue> readValue(const wchar_t* key) {
    DWORD size = 0;
    RegistryValue value;
    if (RegGetValueW(HKEY_CURRENT_USER, key, valueName, RRF_RT_ANY | RRF_NOEXPAND, nullptr, nullptr,
                     &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    value.bytes.resize(size);
    if (RegGetValueW(HKEY_CURRENT_USER, key, valueName, RRF_RT_ANY | RRF_NOEXPAND, &value.type,
                     value.bytes.data(), &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    value.bytes.resize(size);
    return value;
}

void writeValue(const wchar_t* key, const RegistryValue& value) {
    if (RegSetKeyValueW(HKEY_CURRENT_USER, key, valueName, value.type, value.bytes.data(),
                        static_cast<DWORD>(value.bytes.size())) != ERROR_SUCCESS) {
        throw std::runtime_error("the registry refuses the application-data folder");
    }
}

RegistryValue textValue(const std::wstring& text) {
    const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
    return {REG_SZ, {bytes, bytes + (text.size() + 1) * sizeof(wchar_t)}};
}

/// The shell remembers its last answer in the registry; asking it makes that the present one.
void askShell() {
    PIDLIST_ABSOLUTE list = nullptr;
    if (SUCCEEDED(SHGetSpecialFolderLocation(nullptr, CSIDL_APPDATA, &list))) {
        CoTaskMemFree(list);
    }
}

/// A kept value without bytes says that there was none.
void restore() {
    const auto kept = readValue(keptKey);
    if (!kept) {
        return;
    }
    if (kept->type == REG_NONE) {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, shellKey, valueName);
    } else {
        writeValue(shellKey, *kept);
    }
    RegDeleteKeyW(HKEY_CURRENT_USER, keptKey);
    askShell();
}

}  // namespace

AppDataFolder::AppDataFolder() {
    restoreAfterCrash();
    writeValue(keptKey, readValue(shellKey).value_or(RegistryValue{}));
    writeValue(shellKey, textValue(folder_.path().wstring()));
}

AppDataFolder::~AppDataFolder() {
    try {
        restore();
    } catch (const std::exception&) {
        // The next run puts it back.
    }
}

void AppDataFolder::restoreAfterCrash() {
    restore();
}

}  // namespace ormala::test
