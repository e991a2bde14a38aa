#include "storage/win/AccessRights.h"

#include <gtest/gtest.h>

#include <aclapi.h>
#include <sddl.h>

#include <string>

#include "storage/win/LongPath.h"
#include "storage/win/TemporaryFolder.h"
#include "storage/win/WindowsFileStore.h"

namespace ormala {
namespace {

/// The list of a file's rights, as the system writes it.
std::wstring rightsOf(const std::string& path) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    wchar_t* text = nullptr;
    std::wstring rights;
    if (GetNamedSecurityInfoW(longPath(path).c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                              nullptr, nullptr, nullptr, nullptr, &descriptor) == ERROR_SUCCESS &&
        ConvertSecurityDescriptorToStringSecurityDescriptorW(
            descriptor, SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr) != 0) {
        rights = text;
    }
    LocalFree(text);
    LocalFree(descriptor);
    return rights;
}

/// Gives a file that list; what the folder hands down does not reach it.
void setRights(const std::string& path, const wchar_t* text) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1,
                                                                   &descriptor, nullptr),
              0);
    ACL* list = nullptr;
    BOOL present = FALSE;
    BOOL byDefault = FALSE;
    GetSecurityDescriptorDacl(descriptor, &present, &list, &byDefault);
    std::wstring name = longPath(path);
    EXPECT_EQ(SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT,
                                    DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                    nullptr, nullptr, list, nullptr),
              DWORD{ERROR_SUCCESS});
    LocalFree(descriptor);
}

class AccessRightsTest : public testing::Test {
  protected:
    AccessRightsTest() {
        EXPECT_TRUE(store_.replace(path_, "old"));
        usual_ = rightsOf(path_);
    }

    TemporaryFolder folder_;
    WindowsFileStore store_;
    const std::string path_ = folder_.path("a.ini");
    std::wstring usual_;
    /// The owner may do everything, and everybody may read and write.
    const wchar_t* const shared_ = L"D:P(A;;FA;;;OW)(A;;0x12019f;;;WD)";
};

TEST_F(AccessRightsTest, OfTheOldFileStayWhenItIsReplaced) {
    setRights(path_, shared_);
    const std::wstring rights = rightsOf(path_);
    ASSERT_NE(rights, L"");
    ASSERT_NE(rights, usual_);
    ASSERT_TRUE(store_.replace(path_, "new"));
    EXPECT_EQ(rightsOf(path_), rights);
    EXPECT_EQ(store_.read(path_).bytes, "new");
}

TEST_F(AccessRightsTest, OfTheOldFileStayWhereItIsKeptBesideItsSuccessor) {
    setRights(path_, shared_);
    const std::wstring rights = rightsOf(path_);
    ASSERT_TRUE(store_.replaceKeeping(path_, "new"));
    EXPECT_EQ(rightsOf(path_), rights);
}

TEST_F(AccessRightsTest, OfANewFileAreThoseOfItsFolder) {
    const std::string other = folder_.path("b.ini");
    setRights(path_, shared_);
    ASSERT_TRUE(store_.replace(other, "new"));
    EXPECT_EQ(rightsOf(other), usual_);
}

TEST_F(AccessRightsTest, OfAFileThatIsNotThereAreNone) {
    const std::string missing = folder_.path("none.ini");
    AccessRights::of(longPath(missing)).giveTo(longPath(path_));
    EXPECT_EQ(rightsOf(path_), usual_);
    AccessRights::of(longPath(path_)).giveTo(longPath(missing));
    EXPECT_EQ(store_.read(missing).status, ReadResult::Status::notFound);
}

}  // namespace
}  // namespace ormala
