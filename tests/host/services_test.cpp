// The host's services as the component meets them.
#include <gtest/gtest.h>

#include "harness/ProductTest.h"
#include "objects/Describe.h"

namespace tovarin {
namespace {

using namespace recoveryui;
using com::Bstr;
using com::Variant;

using HostServices = test::ProductTest;

TEST_F(HostServices, TheLocatorLooksInTheTestsFolderThenInTheProducts) {
    const std::wstring test = Path(L"test"), product = Path(L"product"), repository = Path(L"repository");
    for (const std::wstring& folder : {test, product, repository}) CreateDirectoryW(folder.c_str(), nullptr);
    for (const wchar_t* file : {L"test\\both.vbs", L"product\\both.vbs", L"product\\only.vbs"})
        MakeFile(file, "");
    const auto locator = New<IFileLocator>(L"Tovarin.FileLocator");
    const auto folders = com::Query<IFileLocatorFolders>(locator.Get());
    folders->SetTestFolder(Bstr(test).Get());
    folders->SetProductFolder(Bstr(product).Get());
    folders->SetRepositoryFolder(Bstr(repository).Get());
    const auto locate = [&](const std::wstring& path, long flags = 5) {
        Bstr full;
        const HRESULT hr = locator->Locate(Bstr(path).Get(), flags, 0, full.Put());
        return hr == STG_E_FILENOTFOUND ? L"-" : hr == S_OK ? full.Text() : L"?";
    };
    const struct {
        const wchar_t* path;
        long flags;
        std::wstring full;
    } located[] = {
        {L"both.vbs", 5, test + L"\\both.vbs"},
        {L"both.vbs", 4, product + L"\\both.vbs"},
        {L".\\x\\..\\only.vbs", 5, product + L"\\only.vbs"},
        {L"only.vbs", 1, L"-"},
        {L"none.vbs", 5, L"-"},
        {L"C:\\none.vbs", 5, L"C:\\none.vbs"},
        {L"[Ondrafel] a\\b.vbs", 5, repository + L"\\Ondrafel\\a\\b.vbs"},
        {L"[Ondrafel] ..\\..\\b.vbs", 5, L"-"},
        {L"", 5, L"?"},
    };
    for (const auto& [path, flags, full] : located) EXPECT_EQ(locate(path, flags), full) << path;

    std::wstring loud = test + L"\\A\\b.vbs";
    CharUpperW(loud.data());
    const std::pair<std::wstring, std::wstring> shortened[] = {
        {loud, L"A\\B.VBS"},
        {product + L"\\only.vbs", product + L"\\only.vbs"},
        {repository + L"\\brevalon\\b.vbs", L"[Brevalon] b.vbs"},
        {L"[Brevalon] b.vbs", L"[Brevalon] b.vbs"},
    };
    for (const auto& [path, relative] : shortened) {
        Bstr stored;
        EXPECT_EQ(locator->MakeRelative(Bstr(path).Get(), stored.Put()), S_OK);
        EXPECT_EQ(stored.Text(), relative);
    }

    for (const auto& path : {repository + L"\\Ondrafel\\b.vbs", std::wstring(L"[Brevalon] b.vbs")})
        EXPECT_EQ(locator->HandBack(Bstr(path).Get()), S_OK);
    EXPECT_EQ(locator->HandBack(Bstr(test + L"\\both.vbs").Get()), E_INVALIDARG);
    folders->SetRepositoryFolder(nullptr);
    EXPECT_EQ(locate(L"[Brevalon] b.vbs"), L"[Brevalon] b.vbs");
}

using HostOptions = HostServices;

TEST_F(HostOptions, DefaultsAreRegistryValuesThatForeignHandsMaySpoil) {
    constexpr const wchar_t* kName = L"RecoveryDefScenarios";
    Bstr path;
    EXPECT_EQ(settings_.Get()->GetSettingsRegistryPath(path.Put()), S_OK);
    const std::wstring key = path.Text() + L"\\ReplayRecovery";
    const BYTE odd[] = {'a', 0, 'b', 0, 'c'};
    const struct {
        DWORD type, size;
        const wchar_t* text;
    } cases[] = {{REG_SZ, 4, L"ab"},
                 {REG_SZ, 5, L"ab"},
                 {REG_SZ, 0, L""},
                 {REG_BINARY, 4, L"-"},
                 {REG_DWORD, 3, L"-"}};
    for (const auto& [type, size, text] : cases) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), kName, type, odd, size), ERROR_SUCCESS);
        EXPECT_EQ(settings_.Stored(kName), text) << type << " " << size;
        EXPECT_EQ(settings_.File()->NewTest(), S_OK);
    }
}

// Names of the functions, or the code for a library that cannot be opened.
class HostLibraries : public HostServices {
protected:
    std::wstring Names(const std::wstring& path) {
        const HRESULT hr = parser_->Open(Bstr(path).Get());
        com::CVtlSafeArray<VARIANT> list;
        if (FAILED(hr)) return DescribeResult(hr);
        EXPECT_EQ(parser_->GetFunctions(list.Put()), S_OK);
        std::wstring names;
        EXPECT_EQ(list.ForEach([&](const Variant& function) {
            Bstr name;
            EXPECT_EQ(com::Query<IScriptFunction>(function.Object())->GetName(name.Put()), S_OK);
            names += name.Text() + L";";
        }),
                  S_OK);
        return names;
    }
    // In UTF-16, or with the bytes of each unit the other way round.
    static std::string Wide(std::wstring_view text, bool swap) {
        std::string bytes(reinterpret_cast<const char*>(text.data()), 2 * text.size());
        for (size_t i = 0; swap && i < bytes.size(); i += 2) std::swap(bytes[i], bytes[i + 1]);
        return bytes;
    }

    com::Ptr<IVBScriptParser> parser_ = New<IVBScriptParser>(L"Vantrel.VBScriptParser");
};

TEST_F(HostLibraries, ALibraryIsReadInEveryUsualEncoding) {
    const std::wstring text = L"\xFEFFSub Gr\xFC\xDF()\r\nEnd Sub";
    const std::pair<std::string, std::wstring> cases[] = {
        {"", L""},
        {"Sub Gr\xFC\xDF()\r\nEnd Sub", L"Gr\xFC\xDF;"},
        {"\xEF\xBB\xBFSub Gr\xC3\xBC\xC3\x9F()\r\nEnd Sub", L"Gr\xFC\xDF;"},
        {Wide(text, false), L"Gr\xFC\xDF;"},
        {Wide(text, true), L"Gr\xFC\xDF;"},
        {"\xEF\xBB\xBF' \xFF", L"E_INVALIDARG"},
        {Wide(text, false) + "x", L"E_INVALIDARG"},
        {std::string("Sub A\0\nEnd Sub", 14), L"E_INVALIDARG"},
        {"Sub A", L"E_INVALIDARG"},
    };
    for (const auto& [bytes, names] : cases) {
        EXPECT_EQ(Names(MakeFile(L"lib.vbs", bytes)), names) << bytes;
        EXPECT_EQ(parser_->Close(), S_OK);
    }
    EXPECT_EQ(Names(folder_ / L"none.vbs"), L"STG_E_FILENOTFOUND");
}

}  // namespace
}  // namespace tovarin
