#include "storage/win/AccessRights.h"

#include <aclapi.h>

#include "storage/win/FileHandle.h"

namespace ormala {

namespace {

/// Whether the folder hands nothing down to the file.
bool isProtected(PSECURITY_DESCRIPTOR descriptor) {
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    return GetSecurityDescriptorControl(descriptor, &control, &revision) != 0 &&
           (control & SE_DACL_PROTECTED) != 0;
}

}  // namespace

AccessRights AccessRights::of(const std::wstring& path) {
    AccessRights rights;
    const FileHandle file = openFile(path, READ_CONTROL, shareAll, OPEN_EXISTING);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (file && GetSecurityInfo(file.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                nullptr, &rights.list_, nullptr, &descriptor) == ERROR_SUCCESS) {
        rights.descriptor_.reset(descriptor);
    }
    return rights;
}

void AccessRights::giveTo(const std::wstring& path) const {
    // Without a list everybody may do everything, which is also what a disk says that knows none.
    if (list_ == nullptr) {
        return;
    }
    // Setting them needs the right to read them.
    const FileHandle file = openFile(path, READ_CONTROL | WRITE_DAC, shareAll, OPEN_EXISTING);
    if (file) {
        const SECURITY_INFORMATION inheritance = isProtected(descriptor_.get())
                                                     ? PROTECTED_DACL_SECURITY_INFORMATION
                                                     : UNPROTECTED_DACL_SECURITY_INFORMATION;
        SetSecurityInfo(file.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance,
                        nullptr, nullptr, list_, nullptr);
    }
}

}  // namespace ormala
