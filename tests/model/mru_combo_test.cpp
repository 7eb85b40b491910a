// The combo box that remembers its entries.
#include "model/CMRUComboBox.h"

#include <gtest/gtest.h>

namespace recoveryui::model {
namespace {

constexpr const wchar_t* kKey = L"Software\\RecoveryUITests\\ReplayRecovery";
constexpr const wchar_t* kValue = L"Recent";

class MruComboTest : public testing::Test {
protected:
    MruComboTest() {
        HKEY key = nullptr;
        RegCreateKeyW(HKEY_CURRENT_USER, kKey, &key);
        RegCloseKey(key);
        Open();
    }
    ~MruComboTest() override {
        Close();
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\RecoveryUITests");
    }
    void Open() {
        window_ = CreateWindowW(L"COMBOBOX", L"", CBS_DROPDOWN | CBS_HASSTRINGS | WS_POPUP, 0, 0, 100, 100,
                                nullptr, nullptr, nullptr, nullptr);
        combo_.Attach(window_);
    }
    void Close() { DestroyWindow(window_); }
    bool Load() { return combo_.LoadMRU(HKEY_CURRENT_USER, kKey, kValue, 4); }

    std::wstring Entries() const {
        std::wstring all;
        for (LRESULT i = 0; i < SendMessageW(window_, CB_GETCOUNT, 0, 0); ++i) {
            wchar_t text[64] = L"";
            SendMessageW(window_, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            all += text + std::wstring(L"|");
        }
        return all;
    }
    static std::wstring Stored(DWORD* type = nullptr, DWORD* size = nullptr) {
        wchar_t text[256] = L"";
        DWORD bytes = sizeof text;
        RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_ANY, type, text, &bytes);
        if (size) *size = bytes;
        return text;
    }
    // `missing` bytes at its end are left out.
    static void Store(const std::wstring& text, DWORD type = REG_SZ, size_t missing = 0) {
        const size_t bytes = text.size() * sizeof(wchar_t) - missing;
        RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, type, text.data(), static_cast<DWORD>(bytes));
    }

    HWND window_ = nullptr;
    CMRUComboBox combo_;
};

TEST_F(MruComboTest, WhatWasUsedIsOfferedNextTimeTheLatestFirst) {
    ASSERT_TRUE(Load());
    for (const wchar_t* path : {L"a.vbs", L"b.vbs", L"c.vbs", L"d.vbs", L"e.vbs", L"C.VBS"})
        combo_.AddString(path);
    EXPECT_EQ(Entries(), L"C.VBS|e.vbs|d.vbs|b.vbs|");
    EXPECT_EQ(combo_.AddString(L"C.v"), 0);
    for (const int nowhere : {-1, 4}) EXPECT_EQ(combo_.InsertString(nowhere, L"z"), CB_ERR);
    EXPECT_EQ(combo_.InsertString(2, L""), CB_ERR);
    EXPECT_EQ(combo_.InsertString(2, L"z;y"), 2);
    Close();
    DWORD type = 0, size = 0;
    EXPECT_EQ(Stored(&type, &size), L"C.VBS;e.vbs;z;y;d.vbs");
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(size, 22u * sizeof(wchar_t));

    Open();
    ASSERT_TRUE(Load());
    EXPECT_EQ(Entries(), L"C.VBS|e.vbs|z|y|");
}

TEST_F(MruComboTest, WithoutAKeyItIsAPlainComboThatRemembersNothing) {
    Store(L"kept");
    ASSERT_TRUE(Load());  // what was bound before is so no more
    EXPECT_FALSE(combo_.LoadMRU(HKEY_CURRENT_USER, L"", kValue, 4));
    EXPECT_FALSE(combo_.LoadMRU(HKEY_CURRENT_USER, L"Software\\RecoveryUITests\\None", kValue, 4));
    HKEY made = nullptr;
    EXPECT_NE(RegOpenKeyW(HKEY_CURRENT_USER, L"Software\\RecoveryUITests\\None", &made), ERROR_SUCCESS);
    for (const wchar_t* path : {L"a", L"a", L"b", L"c", L"d"}) combo_.AddString(path);
    EXPECT_EQ(Entries(), L"kept|a|a|b|c|d|");
    Close();
    EXPECT_EQ(Stored(), L"kept");
}

TEST_F(MruComboTest, AStoredListMayBeWhateverSomebodyLeftThere) {
    const std::wstring separators(1'000'000, L';'), entry(500'000, L'x'), nuls(5, L'\0');
    const struct {
        DWORD type;
        const std::wstring text;
        size_t missing;
        LRESULT entries;
    } cases[] = {{REG_SZ, L"", 0, 0},          {REG_SZ, L"a;b", 0, 2},
                 {REG_SZ, L"a;b", 1, 2},       {REG_SZ, L"a", 1, 1},
                 {REG_MULTI_SZ, L"a;b", 0, 2}, {REG_EXPAND_SZ, L"%x%;b", 0, 2},
                 {REG_DWORD, L"ab", 0, 1},     {REG_BINARY, nuls, 0, 0},
                 {0x12345678, L"a", 0, 1},     {REG_SZ, separators, 0, 0},
                 {REG_SZ, entry, 0, 1},        {REG_SZ, L"a;" + separators + L"b;c;d;e;f", 0, 4}};
    for (const auto& [type, text, missing, entries] : cases) {
        Close();
        Store(text, type, missing);
        Open();
        EXPECT_TRUE(Load());
        EXPECT_EQ(SendMessageW(window_, CB_GETCOUNT, 0, 0), entries) << type << " " << text.size();
        combo_.AddString(L"new");
        Close();
        DWORD stored = 0;
        Stored(&stored);
        EXPECT_EQ(stored, static_cast<DWORD>(REG_SZ)) << "saved as what it should be";
    }
}

}  // namespace
}  // namespace recoveryui::model
