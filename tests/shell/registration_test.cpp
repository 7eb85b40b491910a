// Registration of the real module, in a registry branch of the test's own.
#include <windows.h>

#include <string>

#include "RecoveryUI.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "shell/ClassRegistration.h"
#include "shell/Classes.h"
#include "shell/RegistryKey.h"
#include "shell/RegistryScript.h"

namespace recoveryui::test {
namespace {

constexpr wchar_t kBranch[] = L"Software\\Tovarin\\RegistrationTest";

class RegistrationTest : public ComTest {
protected:
    RegistrationTest() {
        RegDeleteTreeW(HKEY_CURRENT_USER, kBranch);
        RegCreateKeyExW(HKEY_CURRENT_USER, kBranch, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &branch_,
                        nullptr);
        RegOverridePredefKey(HKEY_CLASSES_ROOT, branch_);
    }
    ~RegistrationTest() override {
        RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        RegCloseKey(branch_);
        RegDeleteTreeW(HKEY_CURRENT_USER, kBranch);
    }

    HRESULT Register() const { return CallEntryPoint(component_, "DllRegisterServer"); }
    HRESULT Unregister() const { return CallEntryPoint(component_, "DllUnregisterServer"); }

    static std::wstring ServerKey(const com::ClassEntry& entry) {
        return L"CLSID\\" + shell::GuidText(*entry.clsid) + L"\\InprocServer32";
    }
    static std::wstring LibraryKey() {
        return L"TypeLib\\" + shell::GuidText(LIBID_RecoveryUILib) + L"\\1.0\\0\\Win32";
    }

    static std::wstring Value(const std::wstring& key, const wchar_t* name = L"") {
        wchar_t text[256] = L"";
        DWORD size = sizeof text;
        RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }
    static DWORD Count(const std::wstring& key) {
        DWORD count = 0, size = sizeof count;
        RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), L"RefCount", RRF_RT_REG_DWORD, nullptr, &count, &size);
        return count;
    }
    // How many keys there are below the root of the classes, but for the three that belong to all.
    static DWORD Leftovers() {
        DWORD found = 0;
        for (const wchar_t* parent : {L"", L"CLSID", L"TypeLib", L"Interface"}) {
            DWORD keys = 0;
            const shell::RegistryKey key = shell::OpenKey(HKEY_CLASSES_ROOT, parent);
            if (!key) continue;
            RegQueryInfoKeyW(key.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr, nullptr,
                             nullptr, nullptr, nullptr);
            found += *parent ? keys - 1 : keys;  // this one itself is below the root
        }
        return found;
    }

    HKEY branch_ = nullptr;
};

TEST_F(RegistrationTest, EveryClassIsFoundByFileNameAndCountedUntilTheLastIsGone) {
    ASSERT_EQ(Register(), S_OK);
    for (const com::ClassEntry& entry : shell::Classes()) {
        const std::wstring clsid = shell::GuidText(*entry.clsid), progId = entry.progId;
        EXPECT_EQ(Value(L"CLSID\\" + clsid), entry.description);
        EXPECT_EQ(Value(ServerKey(entry)), L"RecoveryUI.dll") << "no folder: found through the search path";
        EXPECT_EQ(Value(ServerKey(entry), L"ThreadingModel"), L"Apartment");
        EXPECT_EQ(Value(L"CLSID\\" + clsid + L"\\TypeLib"), shell::GuidText(LIBID_RecoveryUILib));
        EXPECT_EQ(Value(L"CLSID\\" + clsid + L"\\ProgID"), progId + L".1");
        EXPECT_EQ(Value(L"CLSID\\" + clsid + L"\\VersionIndependentProgID"), progId);
        EXPECT_EQ(Value(progId + L"\\CurVer"), progId + L".1");
        EXPECT_EQ(Value(progId + L"\\CLSID"), clsid);
        EXPECT_EQ(Value(progId + L".1\\CLSID"), clsid);
        EXPECT_TRUE(shell::OpenKey(HKEY_CLASSES_ROOT, L"CLSID\\" + clsid + L"\\Programmable"));
        EXPECT_EQ(Count(ServerKey(entry)), 1u);
    }
    EXPECT_EQ(Value(LibraryKey()), L"RecoveryUI.dll");
    EXPECT_EQ(Count(LibraryKey()), 1u);

    ASSERT_EQ(Register(), S_OK);
    EXPECT_EQ(Unregister(), S_FALSE) << "another installation still needs it";
    for (const com::ClassEntry& entry : shell::Classes()) EXPECT_EQ(Count(ServerKey(entry)), 1u);
    EXPECT_EQ(Count(LibraryKey()), 1u);
    EXPECT_EQ(Value(LibraryKey()), L"RecoveryUI.dll");

    EXPECT_EQ(Unregister(), S_OK);
    EXPECT_EQ(Leftovers(), 0u);
    EXPECT_EQ(Unregister(), E_FAIL) << "there is nothing to unregister";
}

TEST_F(RegistrationTest, MissingAndForeignCountsAreZero) {
    ASSERT_EQ(Register(), S_OK);
    const std::wstring server = ServerKey(shell::Classes().front());
    RegDeleteKeyValueW(HKEY_CLASSES_ROOT, LibraryKey().c_str(), L"RefCount");
    RegSetKeyValueW(HKEY_CLASSES_ROOT, server.c_str(), L"RefCount", REG_SZ, L"7", 4);
    ASSERT_EQ(Register(), S_OK);
    EXPECT_EQ(Count(server), 1u);
    EXPECT_EQ(Count(LibraryKey()), 1u);
    for (const com::ClassEntry& entry : shell::Classes())
        RegDeleteKeyValueW(HKEY_CLASSES_ROOT, ServerKey(entry).c_str(), L"RefCount");
    EXPECT_EQ(Unregister(), S_OK);
    EXPECT_EQ(Leftovers(), 0u);
}

TEST_F(RegistrationTest, AFailureHalfWayTakesBackWhatWasDone) {
    // Nothing lasting can be made below a volatile key.
    for (const std::wstring& key : {L"CLSID\\" + shell::GuidText(*shell::Classes().back().clsid),
                                    L"TypeLib\\" + shell::GuidText(LIBID_RecoveryUILib)}) {
        HKEY made = nullptr;
        RegCreateKeyW(HKEY_CLASSES_ROOT, key.substr(0, key.find(L'\\')).c_str(), &made);
        RegCloseKey(made);
        ASSERT_EQ(RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                                  KEY_ALL_ACCESS, nullptr, &made, nullptr),
                  ERROR_SUCCESS);
        RegCloseKey(made);
        EXPECT_TRUE(FAILED(Register())) << Utf8(key);
        EXPECT_EQ(Leftovers(), 0u) << Utf8(key);
    }
    EXPECT_EQ(Register(), S_OK) << "and the way is free again";
}

TEST(RegistryScript, RefusesWhatItDoesNotUnderstand) {
    const shell::Replacement replacements[] = {{L"NAME", L"Thing"}};
    const auto entries =
        shell::ParseRegistryScript(L"A\\%NAME% = x %NAME%\r\nA\\%NAME%\\B : v = \n\nC\n", replacements);
    ASSERT_TRUE(entries && entries->size() == 3);
    EXPECT_EQ((*entries)[0].key, L"A\\Thing");
    EXPECT_EQ((*entries)[0].text, L"x Thing");
    EXPECT_EQ((*entries)[2].text, std::nullopt);
    EXPECT_EQ(shell::OwnedKeys(*entries), (std::vector<std::wstring>{L"A\\Thing", L"C"}));
    for (const wchar_t* bad : {L"A\\%OTHER%", L"A\\%NAME", L" = x", L"A = %"})
        EXPECT_FALSE(shell::ParseRegistryScript(bad, replacements)) << bad;
}

}  // namespace
}  // namespace recoveryui::test
